#include "catalogue/duplicates/DuplicateFinder.h"
#include "support/CatalogueFolder.h"

#include <QtTest>

static DuplicateCandidate candidate(const QString &path)
{
    return {path, QCryptographicHash::hash(CatalogueFolder::read(path), QCryptographicHash::Md5)};
}

static QString sample(const QString &name)
{
    return QStringLiteral(SAMPLES_DIR "/") + name;
}

/** Such as "same content: 0 2; same stitches: 1 3". */
static QString textOf(const DuplicateResult &result)
{
    static const char *const names[] = {"content", "stitches", "nearly"};
    QStringList groups;
    for (const DuplicateGroup &group : result.groups) {
        QString text = QLatin1String(names[group.likeness]);
        for (int member : group.members)
            text += QLatin1Char(' ') + QString::number(member);
        groups.append(text);
    }
    return groups.join("; ");
}

class TestDuplicateFinder : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<CatalogueFolder>(); }

    /** The formats of each design are one group, and no two designs are. */
    void findsEverySampleOnce()
    {
        QMap<QString, int> designs;
        QVector<DuplicateCandidate> candidates;
        QDirIterator walk(QStringLiteral(SAMPLES_DIR), QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            candidates.append(candidate(walk.next()));
            ++designs[QFileInfo(candidates.last().path).completeBaseName()];
        }

        const DuplicateResult result = DuplicateFinder(candidates).run();

        QCOMPARE(result.unread, 0);
        QCOMPARE(result.groups.size(), designs.size());
        for (const DuplicateGroup &group : result.groups) {
            const QString name =
                QFileInfo(candidates.at(group.members.first()).path).completeBaseName();
            QCOMPARE(group.likeness, DuplicateGroup::SameStitches);
            QCOMPARE(group.members.size(), designs.value(name));
            for (int member : group.members)
                QCOMPARE(QFileInfo(candidates.at(member).path).completeBaseName(), name);
        }
    }

    void tellsTheKinds()
    {
        const QVector<DuplicateCandidate> candidates{
            candidate(sample("Flowers/rose.pes")), candidate(sample("Shapes/star.pes")),
            candidate(sample("Flowers/rose.dst")), candidate(copy("Flowers/rose.pes", "again.pes")),
            candidate(sample("Animals/cat.jef"))};

        DuplicateFinder finder(candidates);

        QCOMPARE(textOf(finder.run()), "content 0 3; stitches 0 2 3");
        QCOMPARE(finder.filesRead(), finder.fileCount());
        QCOMPARE(finder.fileCount(), 6);
    }

    void leavesOutWhatCannotBeCompared()
    {
        const QString damaged = m_folder->design("damaged.pes");
        QVERIFY(CatalogueFolder::write(damaged, "#PES"));
        DuplicateCandidate changed = candidate(copy("Flowers/rose.dst", "changed.dst"));
        changed.hash = QByteArray(16, 'x');
        DuplicateCandidate neverRead{m_folder->design("never.pes"), QByteArray()};

        const DuplicateResult result =
            DuplicateFinder({candidate(damaged),
                             changed,
                             neverRead,
                             neverRead,
                             {m_folder->design("missing.pes"), QByteArray(16, 'y')},
                             candidate(sample("Flowers/rose.pes"))})
                .run();

        QCOMPARE(textOf(result), QString());
        QCOMPARE(result.unread, 3);
    }

    void takesAnotherFileOfTheSameContent()
    {
        DuplicateCandidate missing = candidate(sample("Flowers/rose.pes"));
        missing.path = m_folder->design("missing.pes");

        const DuplicateResult result =
            DuplicateFinder({missing, candidate(sample("Flowers/rose.pes")),
                             candidate(sample("Flowers/rose.xxx"))})
                .run();

        QCOMPARE(textOf(result), "content 0 1; stitches 0 1 2");
    }

    void endsWhenCancelled()
    {
        DuplicateFinder finder(
            {candidate(sample("Flowers/rose.pes")), candidate(sample("Flowers/rose.xxx"))});
        finder.cancel();

        const DuplicateResult result = finder.run();

        QVERIFY(result.cancelled);
        QCOMPARE(finder.filesRead(), 0);
    }

private:
    QString copy(const QString &from, const QString &name) const
    {
        const QString path = m_folder->design(name);
        if (!QFile::copy(sample(from), path))
            qFatal("cannot copy %s", qPrintable(from));
        return path;
    }

    std::unique_ptr<CatalogueFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDuplicateFinder)
#include "tst_duplicatefinder.moc"
