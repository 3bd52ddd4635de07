#include "catalogue/records/Project.h"
#include "properties/RecordingObserver.h"

#include <QtTest>

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void factsAreNoEdits();
    void editsAreUndoable();
    void tagsOfFiles();
    void tagsOfTheProject();
    void clearAnnouncesAndForgets();
};

void TestRecords::factsAreNoEdits()
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
    QCOMPARE(file.contentHashProp()->value(), QStringLiteral("00ff10"));
    QCOMPARE(file.contentHash(), QByteArray::fromHex("00ff10"));
    QCOMPARE(file.threads().count(), 1);
    QCOMPARE(observer.heard.count(), 1);
}

void TestRecords::editsAreUndoable()
{
    Project project;
    File file(&project);
    file.setFavorite(false);
    QVERIFY(!project.undoStack()->canUndo());
    file.setFavorite(true);
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("mark as favorite"));
    file.setNotes("n");
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("change notes"));
    file.setFavorite(false);
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("clear favorite flag"));
    project.undoStack()->undo();
    QVERIFY(file.isFavorite());
    project.undoStack()->clear();
}

void TestRecords::tagsOfFiles()
{
    Project project;
    File file(&project);
    file.setTags({"b10", "B2"});
    file.addTag("a");
    QCOMPARE(file.tags().join(' '), QStringLiteral("a B2 b10"));
    file.addTag("a");
    QCOMPARE(file.tags().join(' '), QStringLiteral("a a B2 b10"));
    file.removeTag("a");
    QCOMPARE(file.tags().join(' '), QStringLiteral("a B2 b10"));
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("remove tag"));
    // Edits that chain are one step.
    QCOMPARE(project.undoStack()->count(), 1);
    file.removeTag("x");
    QCOMPARE(project.undoStack()->count(), 1);
    project.undoStack()->clear();
}

void TestRecords::tagsOfTheProject()
{
    Project project;
    project.setAllTags({"b", "a"});
    QCOMPARE(project.allTags().join(' '), QStringLiteral("a b"));
    QVERIFY(!project.undoStack()->canUndo());
    project.addTag("a");
    QVERIFY(!project.undoStack()->canUndo());
    project.addTag("A");
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("new tag"));
    QCOMPARE(project.allTags().count(), 3);
    project.removeTag("a");
    QVERIFY(project.allTags().contains("A"));
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("remove tag"));
}

void TestRecords::clearAnnouncesAndForgets()
{
    Project project;
    project.setSmartFolders({"/a"}, "add");
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("add"));
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

QTEST_MAIN(TestRecords)
#include "tst_records.moc"
