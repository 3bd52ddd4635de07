#include "catalogue/Catalogue.h"
#include "catalogue/sync/TagController.h"
#include "properties/undo/GUndoStack.h"
#include <QtTest>

class TagControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void listsTags()
    {
        Catalogue catalogue;
        catalogue.project->setAllTags({"red", "Red", "item 10", "item 2"});
        catalogue.add("/d/n10", {"red"});
        catalogue.add("/d/n2", {"red", "loose"});
        const TagController tags(catalogue.project);
        QCOMPARE(tags.unusedTags(), (QStringList{"item 2", "item 10", "Red"}));
        QCOMPARE(tags.filesWithTag("red"), (QStringList{"n2", "n10"}));
        QCOMPARE(tags.filesWithTag("Red"), QStringList());
    }

    void renamesAndRemovesEverywhere()
    {
        Catalogue catalogue;
        catalogue.project->setAllTags({"blue", "red"});
        const auto both = catalogue.add("/d/a", {"blue", "red"});
        const auto other = catalogue.add("/d/b", {"green"});
        GUndoStack *undo = catalogue.project->undoStack();
        const int steps = undo->count();

        TagController(catalogue.project).renameTag("red", "blue");
        QCOMPARE(both->tags(), (QStringList{"blue", "blue"}));
        QCOMPARE(other->tags(), QStringList{"green"});
        QCOMPARE(undo->undoText(), "rename tag");
        TagController(catalogue.project).removeTag("blue");
        QVERIFY(both->tags().isEmpty() && catalogue.project->allTags().isEmpty());
        QCOMPARE(undo->undoText(), "remove tag");

        QCOMPARE(undo->count(), steps + 2);
        undo->undo();
        undo->undo();
        QCOMPARE(both->tags(), (QStringList{"blue", "red"}));
        QVERIFY(catalogue.project->allTags().isEmpty());
    }

    void removingUnusedTagsIsAnEdit()
    {
        Catalogue catalogue;
        catalogue.add("/d/a", {"item 10", "item 2"});
        catalogue.project->setAllTags({"item 2", "unused", "item 10"});
        GUndoStack *undo = catalogue.project->undoStack();
        undo->setClean();
        TagController(catalogue.project).removeUnusedTagsFromGlobalList();
        QCOMPARE(catalogue.project->allTags(), (QStringList{"item 2", "item 10"}));
        QVERIFY(!undo->isClean());
        undo->setClean();
        TagController(catalogue.project).removeUnusedTagsFromGlobalList();
        QVERIFY(undo->isClean());
        undo->undo();
        QVERIFY(catalogue.project->allTags().contains("unused"));
    }

    void makesTagsOfPaths()
    {
        Catalogue catalogue;
        catalogue.project->setAllTags({"earlier", "by hand"});
        const auto words = catalogue.add("/home/user/Designs/Rose_12.pes", {"earlier"});
        const auto tooShort = catalogue.add("/a/b.p");
        const auto repeated = catalogue.add(QString::fromUtf8("/bl\303\274te/rose/ROSE.dst"));
        const int steps = catalogue.project->undoStack()->count();
        TagController(catalogue.project).createFakeTags();
        QCOMPARE(words->tags(), (QStringList{".pes", "designs", "home", "rose", "user"}));
        QCOMPARE(tooShort->tags(), QStringList());
        QCOMPARE(repeated->tags(), (QStringList{".dst", "rose"}));
        QCOMPARE(catalogue.project->allTags(),
                 (QStringList{".dst", ".pes", "designs", "home", "rose", "user"}));
        QCOMPARE(catalogue.project->undoStack()->count(), steps + 1);
        QCOMPARE(catalogue.project->undoStack()->undoText(), "auto-create tags");
    }
};

QTEST_MAIN(TagControllerTest)
#include "tst_tagcontroller.moc"
