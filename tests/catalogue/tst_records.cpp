#include "catalogue/records/Project.h"
#include "properties/RecordingObserver.h"

#include <QtTest>

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void factsAreNoEdits()
    {
        Project project;
        File file(&project);
        RecordingObserver observer;
        file.contentHashProp()->registerObserver(&observer);
        file.setAbsoluteFilePath("/a");
        file.setFileSize(5);
        file.setModificationDate(4000000000U);
        file.setContentHash(QByteArray::fromHex("00ff10"));
        file.setDesignSize({1, 2});
        const auto thread = QSharedPointer<Thread>::create(&project);
        thread->setColor(Qt::red);
        file.setThreads({thread});
        QVERIFY(!project.undoStack()->canUndo());
        QCOMPARE(file.modificationDate(), 4000000000U);
        QCOMPARE(file.contentHashProp()->value(), "00ff10");
        QCOMPARE(file.contentHash(), QByteArray::fromHex("00ff10"));
        // What somebody else has written into the catalogue.
        for (const char *digits : {"", "0aFf", "f", "0:", "`@/G", "00 ff"}) {
            file.contentHashProp()->setValueWithoutUndoAndAnnounceChange(QString(digits));
            QCOMPARE(file.contentHash(), QByteArray::fromHex(digits));
        }
        QCOMPARE(file.threads().count(), 1);
        QCOMPARE(observer.heard.count(), 7);
    }

    void editsAreUndoable()
    {
        Project project;
        File file(&project);
        file.setFavorite(false);
        QVERIFY(!project.undoStack()->canUndo());
        file.setFavorite(true);
        QCOMPARE(project.undoStack()->undoText(), "mark as favorite");
        file.setNotes("n");
        QCOMPARE(project.undoStack()->undoText(), "change notes");
        file.setFavorite(false);
        QCOMPARE(project.undoStack()->undoText(), "clear favorite flag");
        project.undoStack()->undo();
        QVERIFY(file.isFavorite());
        project.undoStack()->clear();
    }

    void tagsOfFiles()
    {
        Project project;
        File file(&project);
        file.setTags({"b10", "B2"});
        file.addTag("a");
        QCOMPARE(file.tags().join(' '), "a B2 b10");
        file.addTag("a");
        QCOMPARE(file.tags().join(' '), "a a B2 b10");
        file.removeTag("a");
        QCOMPARE(file.tags().join(' '), "a B2 b10");
        QCOMPARE(project.undoStack()->undoText(), "remove tag");
        // Edits that chain are one step.
        QCOMPARE(project.undoStack()->count(), 1);
        file.removeTag("x");
        QCOMPARE(project.undoStack()->count(), 1);
        project.undoStack()->clear();
    }

    void tagsOfTheProject()
    {
        Project project;
        project.setAllTags({"b", "a"});
        QCOMPARE(project.allTags().join(' '), "a b");
        QVERIFY(!project.undoStack()->canUndo());
        project.addTag("a");
        QVERIFY(!project.undoStack()->canUndo());
        project.addTag("A");
        QCOMPARE(project.undoStack()->undoText(), "new tag");
        QCOMPARE(project.allTags().count(), 3);
        project.removeTag("a");
        QVERIFY(project.allTags().contains("A"));
        QCOMPARE(project.undoStack()->undoText(), "remove tag");
    }

    void clearAnnouncesAndForgets()
    {
        Project project;
        project.setSmartFolders({"/a"}, "add");
        QCOMPARE(project.undoStack()->undoText(), "add");
        project.addTag("t");
        RecordingObserver observer;
        project.smartFoldersProp()->registerObserver(&observer);
        project.allTagsProp()->registerObserver(&observer);
        project.filesProp()->registerObserver(&observer);
        project.clear();
        QCOMPARE(observer.heard.count(), 3);
        QVERIFY(!project.undoStack()->canUndo());
        QVERIFY(project.smartFolders().isEmpty() && project.allTags().isEmpty());
    }
};

QTEST_MAIN(TestRecords)
#include "tst_records.moc"
