#include "catalogue/records/Project.h"
#include "properties/RecordingObserver.h"

#include <QtTest>

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void namesAndDefaults();
    void factsAreNoEdits();
    void editsAreUndoable();
    void tagsOfFiles();
    void tagsOfTheProject();
    void filesAreSorted();
    void clearAnnouncesAndForgets();
    void smartFoldersAreUndoable();
};

void TestRecords::namesAndDefaults()
{
    Project project;
    QCOMPARE(project.propertyName(), QStringLiteral("hoopline_organizer"));
    QCOMPARE(project.propertyNames().join(' '),
             QStringLiteral("preset_collections smart_folders files all_tags"));
    File file(&project);
    QCOMPARE(file.propertyNames().join(' '),
             QStringLiteral("absolute_file_path file_size modification_date content_hash name "
                            "design_size stitch_count threads notes tags is_favorite"));
    QCOMPARE(file.designSize(), QSizeF(-1, -1));
    QVERIFY(file.contentHash().isEmpty());
    Thread thread(&project);
    QCOMPARE(thread.propertyNames().join(' '), QStringLiteral("color color_name chart"));
    QVERIFY(!thread.color().isValid());
}

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
    QCOMPARE(file.threads().first()->color(), QColor(Qt::red));
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

void TestRecords::filesAreSorted()
{
    Project project;
    QList<QSharedPointer<IFile>> files;
    for (const char *path : {"/b", "/a10", "/B", "/a2"}) {
        files << QSharedPointer<File>::create(&project);
        files.last()->setAbsoluteFilePath(QString::fromLatin1(path));
    }
    project.setFiles(files);
    QStringList paths;
    for (const auto &file : project.files())
        paths << file->absoluteFilePath();
    QCOMPARE(paths.join(' '), QStringLiteral("/B /a10 /a2 /b"));
    QCOMPARE(project.files().at(3), files.at(0));
    QVERIFY(!project.undoStack()->canUndo());
}

void TestRecords::clearAnnouncesAndForgets()
{
    Project project;
    project.setSmartFolders({"/a"}, "add");
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

void TestRecords::smartFoldersAreUndoable()
{
    Project project;
    project.setSmartFolders({"/a"}, "add folder");
    QCOMPARE(project.undoStack()->undoText(), QStringLiteral("add folder"));
    project.undoStack()->undo();
    QVERIFY(project.smartFolders().isEmpty());
}

QTEST_MAIN(TestRecords)
#include "tst_records.moc"
