#include "catalogue/records/File.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/TagController.h"
#include "properties/GUndoStack.h"
#include <QtTest>

class TagControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listsTags();
    void renamesEverywhere();
    void removesEverywhere();
    void reconcilesGlobalList();
    void makesTagsOfPaths_data();
    void makesTagsOfPaths();
    void makesTagsAsOneStep();

private:
    QSharedPointer<IFile> addFile(const QString &path, const QStringList &tags = {});

    QSharedPointer<Project> m_project;
};

void TagControllerTest::init()
{
    m_project = QSharedPointer<Project>::create();
}

QSharedPointer<IFile> TagControllerTest::addFile(const QString &path, const QStringList &tags)
{
    const auto file = QSharedPointer<File>::create(m_project.data());
    file->setAbsoluteFilePath(path);
    file->setName(path.section('/', -1));
    m_project->setFiles(m_project->files() << file);
    file->setTags(tags);
    return file;
}

void TagControllerTest::listsTags()
{
    m_project->setAllTags({"red", "Red", "item 10", "item 2"});
    addFile("/d/n10", {"red"});
    addFile("/d/n2", {"red", "loose"});
    const TagController tags(m_project);
    QCOMPARE(tags.usedTags(), (QSet<QString>{"red", "loose"}));
    QCOMPARE(tags.unusedTags(), (QStringList{"item 2", "item 10", "Red"}));
    QCOMPARE(tags.filesWithTag("red"), (QStringList{"n2", "n10"}));
    QCOMPARE(tags.filesWithTag("Red"), QStringList());
}

void TagControllerTest::renamesEverywhere()
{
    m_project->setAllTags({"blue", "red"});
    const auto both = addFile("/d/a", {"blue", "red"});
    const auto none = addFile("/d/b", {"green"});
    const int steps = m_project->undoStack()->count();
    TagController(m_project).renameTag("red", "blue");
    QCOMPARE(both->tags(), (QStringList{"blue", "blue"}));
    QCOMPARE(none->tags(), QStringList{"green"});
    QCOMPARE(m_project->undoStack()->count(), steps + 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("rename tag"));

    m_project->undoStack()->undo();
    QCOMPARE(both->tags(), (QStringList{"blue", "red"}));
    QVERIFY(!m_project->allTags().contains("red"));
}

void TagControllerTest::removesEverywhere()
{
    m_project->setAllTags({"blue", "red"});
    const auto file = addFile("/d/a", {"red", "blue", "red"});
    TagController(m_project).removeTag("red");
    QCOMPARE(file->tags(), QStringList{"blue"});
    QCOMPARE(m_project->allTags(), QStringList{"blue"});
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("remove tag"));
}

void TagControllerTest::reconcilesGlobalList()
{
    m_project->setAllTags({"unused", "b"});
    addFile("/d/a", {"b", "a"});
    TagController tags(m_project);
    tags.addFileTagsToGlobalList();
    QCOMPARE(m_project->allTags(), (QStringList{"a", "b", "unused"}));
    tags.removeUnusedTagsFromGlobalList();
    QCOMPARE(m_project->allTags(), (QStringList{"a", "b"}));
}

void TagControllerTest::makesTagsOfPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("tags");
    QTest::newRow("words of directories and name")
        << "/home/user/Designs/Rose_12.pes"
        << QStringList{".pes", "designs", "home", "rose", "user"};
    QTest::newRow("short words go") << "/a/b.pes" << QStringList{".pes"};
    QTest::newRow("short suffix goes") << "/tree/leaf.p" << QStringList{"leaf", "tree"};
    QTest::newRow("twice is once") << "/rose/ROSE.dst" << QStringList{".dst", "rose"};
    QTest::newRow("other letters separate")
        << QString::fromUtf8("/bl\303\274te/fix.dst") << QStringList{".dst", "fix"};
}

void TagControllerTest::makesTagsOfPaths()
{
    QFETCH(QString, path);
    const auto file = addFile(path, {"earlier"});
    m_project->setAllTags({"earlier", "by hand"});
    TagController(m_project).createFakeTags();
    QTEST(file->tags(), "tags");
    QTEST(m_project->allTags(), "tags");
}

void TagControllerTest::makesTagsAsOneStep()
{
    addFile("/folder/one.dst");
    addFile("/folder/two.dst");
    const int steps = m_project->undoStack()->count();
    TagController(m_project).createFakeTags();
    QCOMPARE(m_project->undoStack()->count(), steps + 1);
    QCOMPARE(m_project->undoStack()->undoText(), QStringLiteral("auto-create tags"));
}

QTEST_MAIN(TagControllerTest)
#include "tst_tagcontroller.moc"
