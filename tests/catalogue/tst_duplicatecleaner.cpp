#include "Catalogue.h"
#include "catalogue/duplicates/DuplicateCleaner.h"
#include "catalogue/duplicates/DuplicateWords.h"
#include "support/CatalogueFolder.h"
#include "support/Rows.h"

#include <QtTest>

/** Designs that give way to one that is kept: their files, and what was said about them. */
class TestDuplicateCleaner : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<CatalogueFolder>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->dataFile("share")));
        QVERIFY(QDir().mkpath(m_folder->dataFile("share")));
    }

    void movesToTheTrash()
    {
        const auto kept = design("kept.pes", "a");
        const auto copy = design("copy.pes", "a");
        const auto other = design("other.dst", "b");

        const auto outcome = DuplicateCleaner::moveToTrash(kept, {copy, other}, never);

        QCOMPARE(outcome.failures, QStringList());
        QCOMPARE(outcome.moved, QStringList({copy.path, other.path}));
        QVERIFY(QFile::exists(kept.path));
        QVERIFY(!QFile::exists(copy.path));
        QVERIFY(outcome.inTrash.first().startsWith(m_folder->dataFile("share/Trash")));
        QCOMPARE(CatalogueFolder::read(outcome.inTrash.first()), "a");
        QCOMPARE(CatalogueFolder::read(outcome.inTrash.last()), "b");
    }

    void leavesWhatItDoesNotKnow_data()
    {
        const Rows<QString> row("fault");
        row("the one to keep is gone", "kept gone");
        row("the one to keep has changed", "kept changed");
        row("the other one has changed", "other changed");
        row("both are the same file", "link");
        row("there is no trash", "no trash");
    }

    void leavesWhatItDoesNotKnow()
    {
        QFETCH(QString, fault);
        const auto kept = design("kept.pes", "a");
        auto other = design("copy.pes", "a");
        if (fault == QLatin1String("kept gone"))
            QVERIFY(QFile::remove(kept.path));
        else if (fault == QLatin1String("kept changed"))
            design("kept.pes", "another");
        else if (fault == QLatin1String("other changed"))
            design("copy.pes", "another");
        if (fault == QLatin1String("link")) {
            QVERIFY(QFile::link(m_folder->designs(), m_folder->dataFile("link")));
            other.path = m_folder->dataFile("link/kept.pes");
        }
        if (fault == QLatin1String("no trash"))
            QVERIFY(CatalogueFolder::write(m_folder->dataFile("share/Trash"), "in its place"));

        const auto outcome = DuplicateCleaner::moveToTrash(kept, {other}, never);

        QCOMPARE(outcome.moved, QStringList());
        QCOMPARE(outcome.failures.size(), 1);
        QVERIFY(outcome.failures.first().startsWith(other.path + ": "));
        QVERIFY(QFile::exists(other.path));
    }

    void stopsWhenAsked()
    {
        const auto kept = design("kept.pes", "a");
        const auto first = design("first.pes", "a");
        const auto second = design("second.pes", "a");
        int asked = 0;

        const auto outcome =
            DuplicateCleaner::moveToTrash(kept, {first, second}, [&asked] { return asked++ == 1; });

        QCOMPARE(outcome.moved, QStringList(first.path));
        QVERIFY(QFile::exists(second.path));
    }

    void joinsTheWords()
    {
        Catalogue catalogue;
        const auto kept = catalogue.add("/d/kept.pes", {"flowers"});
        const auto other = catalogue.add("/d/other.pes", {"roses", "flowers"});
        const auto third = catalogue.add("/d/third.pes", {"Christmas"});
        kept->setNotes("Use 40 weight.");
        other->setNotes("For Anna");
        third->setFavorite(true);
        catalogue.project->undoStack()->clear();

        DuplicateWords::join(*catalogue.project, kept, {other, third});

        QCOMPARE(kept->tags(), QStringList({"Christmas", "flowers", "roses"}));
        QCOMPARE(kept->notes(), "Use 40 weight.\nFor Anna");
        QVERIFY(kept->isFavorite());
        QCOMPARE(other->tags(), QStringList({"roses", "flowers"}));

        catalogue.project->undoStack()->undo();
        QCOMPARE(kept->tags(), QStringList("flowers"));
        QCOMPARE(kept->notes(), "Use 40 weight.");
        QVERIFY(!kept->isFavorite());
    }

    void addsNothingThatIsThere()
    {
        Catalogue catalogue;
        const auto kept = catalogue.add("/d/kept.pes", {"flowers"});
        const auto other = catalogue.add("/d/other.pes", {"flowers"});
        kept->setNotes("For Anna, in red");
        other->setNotes("For Anna");

        DuplicateWords::join(*catalogue.project, kept, {other});

        QCOMPARE(kept->tags(), QStringList("flowers"));
        QCOMPARE(kept->notes(), "For Anna, in red");
    }

    void removesRecords()
    {
        Catalogue catalogue;
        catalogue.add("/d/kept.pes");
        catalogue.add("/d/other.pes");
        catalogue.project->undoStack()->setClean();

        DuplicateWords::removeRecords(*catalogue.project, {"/d/other.pes"});

        QCOMPARE(Catalogue::paths(catalogue.project->files()), "/d/kept.pes");
        QVERIFY(!catalogue.project->undoStack()->isClean());
        QVERIFY(!catalogue.project->undoStack()->canUndo());
    }

    void proposesTheWorthiest()
    {
        Catalogue catalogue;
        const auto plain = catalogue.add("/d/a.dst", {"one", "two"});
        const auto threads = catalogue.add("/d/b.pes");
        const auto thread = QSharedPointer<Thread>::create(catalogue.project.data());
        thread->setColorName("Deep Rose");
        threads->setThreads({thread});
        const auto tagged = catalogue.add("/d/c.dst", {"one", "two", "three"});
        const auto starred = catalogue.add("/d/d.dst");
        starred->setFavorite(true);

        QCOMPARE(DuplicateWords::worthiest({plain, tagged}), 1);
        QCOMPARE(DuplicateWords::worthiest({plain, tagged, starred}), 2);
        QCOMPARE(DuplicateWords::worthiest({plain, tagged, starred, threads}), 3);
        QCOMPARE(DuplicateWords::worthiest({starred, starred}), 0);
    }

private:
    DuplicateCandidate design(const QString &name, const QByteArray &content) const
    {
        const QString path = m_folder->design(name);
        if (!CatalogueFolder::write(path, content))
            qFatal("cannot write %s", qPrintable(path));
        return {path, QCryptographicHash::hash(content, QCryptographicHash::Md5)};
    }
    static bool never() { return false; }

    std::unique_ptr<CatalogueFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDuplicateCleaner)
#include "tst_duplicatecleaner.moc"
