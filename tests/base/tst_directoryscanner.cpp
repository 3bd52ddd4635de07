#include "base/files/DirectoryScanner.h"
#include "base/files/FileTools.h"
#include "support/ScriptedListener.h"

#include <cstdio>
#include <QtTest>

class TestDirectoryScanner : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir.reset(new QTemporaryDir); }

    void findsWhatIsAskedFor()
    {
        make({"c/S/0", "b.dst", "A.PES", ":-)", "c/a.pes", "c/.t", "B2/Z.pes", "B2/y/q", ".d/in"});
        const QString all = ":-) A.PES b.dst B2/Z.pes B2/y/q c/a.pes c/S/0";
        DirectoryScanner scanner;
        QCOMPARE(scan(scanner), all);
        scanner.setExtensions({"pes", "DST"});
        QCOMPARE(scan(scanner), "A.PES b.dst B2/Z.pes c/a.pes");
        scanner.setExtensions({});
        QCOMPARE(scan(scanner), all);
        scanner.setFilters(QStringList{"*.pes", "*/c/*"});
        scanner.setExcludeFilters(QStringList{"*/C/a*"});
        QCOMPARE(scan(scanner), "A.PES B2/Z.pes c/S/0");

        DirectoryScanner hidden({}, {"B2", "s"});
        hidden.setReturnHidden(true);
        QCOMPARE(scan(hidden), ":-) A.PES b.dst .d/in c/.t c/a.pes c/S/0");
    }

    void ordersNamesAsTheToolkitDoes()
    {
        QStringList names =
            QStringLiteral(u"b A a aa AB _a [ \u00df Stra\u00dfe strasse STRASZE a1 a\u00e9 aE "
                           u"\u00c9 \u00e9 z\u00fc ZU \U0001f9f5 \u2460 Z")
                .split(QLatin1Char(' '));
        make(names);
        std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
            const int order = QString::compare(a, b, Qt::CaseInsensitive);
            return order != 0 ? order < 0 : a < b;
        });
        QCOMPARE(scan(), names.join(QLatin1Char(' ')));
    }

    void abortLeavesAPartialList()
    {
        make({"a", "b/c", "d/e", "d/f/g"});
        ScriptedListener listener;
        listener.onProceed = [&](const QString &) {
            listener.aborted = listener.texts.count() == 2;
        };
        DirectoryScanner scanner;
        scanner.setAbortCheck(&listener);
        scanner.setProgressListener(&listener);
        QCOMPARE(scan(scanner), "a b/c");
        QCOMPARE(listener.texts.count(), 2);
    }

    void longPathsAreShortened()
    {
        ScriptedListener listener;
        DirectoryScanner scanner;
        scanner.setProgressListener(&listener);
        scanner.findFilesRecursive(QLatin1Char('/') + QString(39, 'x'));
        scanner.findFilesRecursive(QLatin1Char('/') + QString(40, 'x'));
        QCOMPARE(listener.texts, QStringList({"Scanning directory '/" + QString(39, 'x') + "'",
                                              "Scanning directory '..." + QString(40, 'x') + "'"}));
    }

    void decomposedNamesAreFound()
    {
        const QString composed = "r\u00e9.pes";
        make({composed.normalized(QString::NormalizationForm_D)});
        const QList<QFileInfo> files = DirectoryScanner().fileInfoRecursive(m_dir->path());
        QCOMPARE(files.count(), 1);
        QVERIFY(files.first().exists());
        QCOMPARE(files.first().fileName().normalized(QString::NormalizationForm_C), composed);

        // Two files, where the file system holds both forms: each is found once.
        make({composed});
        QStringList paths = DirectoryScanner().findFilesRecursive(m_dir->path());
        QCOMPARE(paths.count(), QDir(m_dir->path()).entryList(QDir::Files).count());
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void linksCountAsWhatTheyLeadTo()
    {
        make({"real/a"});
        QVERIFY(QFile::link(m_dir->filePath("real"), m_dir->filePath("link")));
        QVERIFY(QFile::link(m_dir->filePath("real/a"), m_dir->filePath("file")));
        QVERIFY(QFile::link(m_dir->filePath("missing"), m_dir->filePath("dangling")));
        QCOMPARE(scan(), "file link/a real/a");
    }

    void entersNoFolderOnTheWayToItself()
    {
        make({"a", "b/c/d"});
        QVERIFY(QFile::link(m_dir->path(), m_dir->filePath("up")));
        QVERIFY(QFile::link(m_dir->filePath("b"), m_dir->filePath("b/c/back")));
        QVERIFY(QFile::link(m_dir->filePath("b/c"), m_dir->filePath("side")));
        // A link beside the way is followed, as far as that leads elsewhere.
        QCOMPARE(scan(), "a b/c/d side/d");
    }

    void tellsWhatItSeesAndWhatNot()
    {
        make({"a", "sub/b"});
        const FoundFiles found = DirectoryScanner().find(m_dir->path());
        QCOMPARE(found.files.count(), 2);
        QCOMPARE(found.files.first().path, m_dir->filePath("a"));
        QCOMPARE(found.files.first().size, 1);
        QCOMPARE(found.files.first().modified,
                 QFileInfo(m_dir->filePath("a")).lastModified().toSecsSinceEpoch());
        QVERIFY(found.skipped.isEmpty());

        // A file and a folder whose names are no text: what lies in the folder isn't reached.
        const QByteArray dir = QFile::encodeName(m_dir->path());
        QVERIFY(QFile::copy(m_dir->filePath("a"), m_dir->filePath("tmp")));
        QCOMPARE(::rename(dir + "/tmp", dir + "/caf\xe9.pes"), 0);
        QCOMPARE(::rename(dir + "/sub", dir + "/\xff"), 0);
        const FoundFiles rest = DirectoryScanner().find(m_dir->path());
        QCOMPARE(rest.files.count(), 1);
        QCOMPARE(rest.skipped.count(), 2);
        QCOMPARE(rest.skipped.first().kind, SkippedEntry::UndecodableName);
        QVERIFY(rest.skipped.first().path.startsWith(m_dir->path()));
        // The cleaning up would not find them either.
        QCOMPARE(::rename(dir + "/caf\xe9.pes", dir + "/tmp"), 0);
        QCOMPARE(::rename(dir + "/\xff", dir + "/sub"), 0);

        const FoundFiles none = DirectoryScanner().find(m_dir->filePath("missing"));
        QCOMPARE(none.skipped.count(), 1);
        QCOMPARE(none.skipped.first().kind, SkippedEntry::MissingFolder);
        QCOMPARE(none.skipped.first().path, m_dir->filePath("missing"));
        QVERIFY(!none.skipped.first().reason.isEmpty());
        QCOMPARE(DirectoryScanner().find(m_dir->filePath("a")).skipped.count(), 1);
    }

private:
    void make(const QStringList &names)
    {
        for (const QString &name : names)
            FileTools::writeAll(m_dir->filePath("./" + name), "x");
    }

    QString scan(const DirectoryScanner &scanner = {}) const
    {
        QStringList names = scanner.findFilesRecursive(m_dir->path());
        for (QString &name : names)
            name.remove(0, m_dir->path().length() + 1);
        return names.join(QLatin1Char(' '));
    }

    QScopedPointer<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestDirectoryScanner)
#include "tst_directoryscanner.moc"
