#include "app/base/IProgressAbortListener.h"
#include "catalogue/disk/DirectoryScanner.h"
#include "catalogue/disk/FileTools.h"

#include <QTemporaryDir>
#include <QtTest>

/** Remembers the messages and asks to stop after some of them. */
class Listener : public IProgressAbortListener
{
public:
    void setSteps(int) override {}
    void proceed(const QString &message) override { messages << message; }
    int abortState() const override { return messages.count() >= stopAfter ? 2 : 0; }

    QStringList messages;
    int stopAfter = 1000;
};

class TestDirectoryScanner : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void filesBeforeFolders();
    void hiddenEntries();
    void filters_data();
    void filters();
    void finishedExpressions();
    void excludedFolders();
    void unreadableFolderIsEmpty();
    void abortLeavesAPartialList();
    void longPathsAreShortened_data();
    void longPathsAreShortened();
    void namesAreComposed();
    void linksCountAsWhatTheyLeadTo();

private:
    void make(const QStringList &names);
    QString scan(const DirectoryScanner &scanner) const;

    QScopedPointer<QTemporaryDir> m_dir;
};

void TestDirectoryScanner::init()
{
    m_dir.reset(new QTemporaryDir);
}

void TestDirectoryScanner::make(const QStringList &names)
{
    for (const QString &name : names)
        FileTools::writeAll(m_dir->filePath(name), "x");
}

QString TestDirectoryScanner::scan(const DirectoryScanner &scanner) const
{
    QStringList names;
    const QStringList paths = scanner.findFilesRecursive(m_dir->path());
    for (const QString &path : paths)
        names << QDir(m_dir->path()).relativeFilePath(path);
    return names.join(QLatin1Char(' '));
}

void TestDirectoryScanner::filesBeforeFolders()
{
    make({"b", "A", "c/a", "B2/Z", "B2/y/q", "c/0/1"});
    QCOMPARE(scan(DirectoryScanner()), QStringLiteral("A b B2/Z B2/y/q c/a c/0/1"));
}

void TestDirectoryScanner::hiddenEntries()
{
    make({"a", ".h", ".d/in", "s/.t"});
    QCOMPARE(scan(DirectoryScanner()), QStringLiteral("a"));
    DirectoryScanner scanner;
    scanner.setReturnHidden(true);
    QCOMPARE(scan(scanner), QStringLiteral(".h a .d/in s/.t"));
}

void TestDirectoryScanner::filters_data()
{
    QTest::addColumn<QStringList>("extensions");
    QTest::addColumn<QStringList>("excluded");
    QTest::addColumn<QString>("found");
    QTest::newRow("one") << QStringList("pes") << QStringList() << "a.pes b.PES s/c.pes";
    QTest::newRow("two") << QStringList({"dst", "pes"}) << QStringList()
                         << "a.pes b.PES d.dst s/c.pes";
    QTest::newRow("none") << QStringList() << QStringList() << "a.pes b.PES d.dst e.txt s/c.pes";
    QTest::newRow("across folders")
        << QStringList() << QStringList("*/s*") << "a.pes b.PES d.dst e.txt";
    QTest::newRow("both") << QStringList("pes") << QStringList("*B.pes") << "a.pes s/c.pes";
}

void TestDirectoryScanner::filters()
{
    QFETCH(QStringList, extensions);
    QFETCH(QStringList, excluded);
    QFETCH(QString, found);
    make({"a.pes", "b.PES", "d.dst", "e.txt", "s/c.pes"});
    DirectoryScanner scanner(QStringLiteral("nothing"));
    scanner.setExtensions(extensions);
    QStringList absolute;
    for (const QString &wildcard : excluded)
        absolute << (wildcard.startsWith("*/") ? m_dir->filePath(wildcard.mid(2)) : wildcard);
    scanner.setExcludeFilters(absolute);
    QCOMPARE(scan(scanner), found);
}

void TestDirectoryScanner::finishedExpressions()
{
    make({"a1", "a2", "b1"});
    DirectoryScanner scanner;
    scanner.setFilters(QList<QRegExp>({QRegExp(QStringLiteral(".*/a\\d"))}));
    scanner.setExcludeFilters(QList<QRegExp>({QRegExp(QStringLiteral(".*2"))}));
    QCOMPARE(scan(scanner), QStringLiteral("a1"));
}

void TestDirectoryScanner::excludedFolders()
{
    make({"skip/a", "Skip/b", "s/skip/c", "s/d"});
    QCOMPARE(scan(DirectoryScanner(QStringList(), {QStringLiteral("skip")})),
             QStringLiteral("s/d Skip/b"));
}

void TestDirectoryScanner::unreadableFolderIsEmpty()
{
    QCOMPARE(DirectoryScanner().findFilesRecursive(m_dir->filePath("missing")), QStringList());
}

void TestDirectoryScanner::abortLeavesAPartialList()
{
    make({"a", "b/c", "d/e", "d/f/g"});
    Listener listener;
    listener.stopAfter = 2;
    DirectoryScanner scanner;
    scanner.setAbortCheck(&listener);
    scanner.setProgressListener(&listener);
    QCOMPARE(scan(scanner), QStringLiteral("a b/c"));
}

void TestDirectoryScanner::longPathsAreShortened_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("shown");
    QTest::newRow("40") << 40 << "Scanning directory '/" + QString(39, 'x') + "'";
    QTest::newRow("41") << 41 << "Scanning directory '..." + QString(40, 'x') + "'";
}

void TestDirectoryScanner::longPathsAreShortened()
{
    QFETCH(int, length);
    QFETCH(QString, shown);
    Listener listener;
    DirectoryScanner scanner;
    scanner.setProgressListener(&listener);
    scanner.findFilesRecursive(QLatin1Char('/') + QString(length - 1, 'x'));
    QCOMPARE(listener.messages, QStringList(shown));
}

void TestDirectoryScanner::namesAreComposed()
{
    const QString decomposed = QStringLiteral("re\u0301.pes");
    make({decomposed});
    const QList<QFileInfo> files = DirectoryScanner().fileInfoRecursive(m_dir->path());
    QCOMPARE(files.count(), 1);
    QVERIFY(files.first().exists());
    QCOMPARE(files.first().fileName().normalized(QString::NormalizationForm_C),
             QStringLiteral("r\u00e9.pes"));

    // Two files, where the file system holds both forms: each is found once.
    make({QStringLiteral("r\u00e9.pes")});
    QStringList paths = DirectoryScanner().findFilesRecursive(m_dir->path());
    QCOMPARE(paths.count(), QDir(m_dir->path()).entryList(QDir::Files).count());
    QCOMPARE(paths.removeDuplicates(), 0);
}

void TestDirectoryScanner::linksCountAsWhatTheyLeadTo()
{
    make({"real/a"});
    QVERIFY(QFile::link(m_dir->filePath("real"), m_dir->filePath("link")));
    QVERIFY(QFile::link(m_dir->filePath("real/a"), m_dir->filePath("file")));
    QVERIFY(QFile::link(m_dir->filePath("missing"), m_dir->filePath("dangling")));
    QCOMPARE(scan(DirectoryScanner()), QStringLiteral("file link/a real/a"));
}

QTEST_GUILESS_MAIN(TestDirectoryScanner)
#include "tst_directoryscanner.moc"
