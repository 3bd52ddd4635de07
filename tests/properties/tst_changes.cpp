#include "properties/ChangeManager.h"
#include "properties/GProject.h"
#include "properties/GUndoStack.h"
#include "properties/PropertyValues.h"
#include "properties/RecordingObserver.h"

#include <memory>
#include <QtTest>
#include <vector>

using Heard = QList<const Observable *>;

class TestChanges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tellsEachObserverOnce();
    void tellsTheLatestObserverFirst();
    void keepsTheOrderAmongThousands();
    void walksASnapshot();
    void nestedChangesAreToldAtOnce();
    void theDyingLeave();
    void bulkKeepsTheLastAnnouncement();
    void bulkOfChosenObservables();
    void bulkSurvivesADeadObservable();
    void bulkDoesNotNest();
    void bulkWithDuplicates();
    void chainedEditsMerge();
    void brokenChainStaysTwoSteps();
    void editsOfTwoPropertiesStayApart();
    void rollbackLeavesNothingToRedo();
    void cleanState();
    void viewCommandsStayClean();
    void deferredMacroIsOneStep();
    void macroEndsWhenAnObserverThrows();
    void macroBlockEndsItsMacro();

private:
    std::unique_ptr<GProject> m_project;
    PropertyInt *m_a = nullptr;
    PropertyInt *m_b = nullptr;
};

void TestChanges::init()
{
    m_project =
        std::make_unique<GProject>(QStringLiteral("document"), QList<PropertyDescription *>());
    m_a = m_project->addProperty(new PropertyInt(m_project.get(), QStringLiteral("a"), 1));
    m_b = m_project->addProperty(new PropertyInt(m_project.get(), QStringLiteral("b"), 1));
}

void TestChanges::cleanup()
{
    m_project.reset();
}

void TestChanges::tellsEachObserverOnce()
{
    RecordingObserver observer;
    m_a->registerObserver(&observer);
    m_a->registerObserver(&observer);
    m_a->announceChange();
    QCOMPARE(observer.heard, Heard({m_a}));
    m_a->unregister(&observer);
    m_a->announceChange();
    QCOMPARE(observer.heard.count(), 1);
}

void TestChanges::tellsTheLatestObserverFirst()
{
    QStringList order;
    RecordingObserver first;
    RecordingObserver second;
    RecordingObserver third;
    first.reaction = [&order] { order << QStringLiteral("first"); };
    second.reaction = [&order] { order << QStringLiteral("second"); };
    third.reaction = [&order] { order << QStringLiteral("third"); };
    m_a->registerObserver(&first);
    m_a->registerObserver(&second);
    m_a->registerObserver(&third);
    m_a->registerObserver(&first);
    m_a->announceChange();
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("third second first"));
}

void TestChanges::keepsTheOrderAmongThousands()
{
    RecordingObserver listener;
    std::vector<std::unique_ptr<PropertyInt>> crowd;
    QList<int> order;
    std::vector<RecordingObserver> observers(20);
    for (int i = 0; i < 20; ++i) {
        observers[std::size_t(i)].reaction = [&order, i] { order.append(i); };
        m_a->registerObserver(&observers[std::size_t(i)]);
        for (int k = 0; k < 500; ++k) {
            crowd.push_back(std::make_unique<PropertyInt>(m_project.get(), QString(), 0));
            crowd.back()->registerObserver(&listener);
        }
    }
    crowd.clear();
    m_a->announceChange();
    QCOMPARE(order.count(), 20);
    QVERIFY(std::is_sorted(order.rbegin(), order.rend()));
}

void TestChanges::walksASnapshot()
{
    RecordingObserver early;
    RecordingObserver late;
    RecordingObserver fresh;
    m_a->registerObserver(&early);
    m_a->registerObserver(&late);
    late.reaction = [&] {
        m_a->unregister(&early);
        m_a->registerObserver(&fresh);
    };
    m_a->announceChange();
    QCOMPARE(early.heard.count(), 1);
    QCOMPARE(fresh.heard.count(), 0);
    m_a->announceChange();
    QCOMPARE(early.heard.count(), 1);
    QCOMPARE(fresh.heard.count(), 1);
}

void TestChanges::nestedChangesAreToldAtOnce()
{
    RecordingObserver observer;
    RecordingObserver last;
    m_a->registerObserver(&last);
    m_b->registerObserver(&last);
    m_a->registerObserver(&observer);
    observer.reaction = [this] { m_b->setValueWithoutUndoAndAnnounceChange(9); };
    m_a->setValueWithoutUndoAndAnnounceChange(2);
    QCOMPARE(last.heard, Heard({m_b, m_a}));
}

void TestChanges::theDyingLeave()
{
    auto observer = std::make_unique<RecordingObserver>();
    m_a->registerObserver(observer.get());
    observer.reset();
    m_a->announceChange();

    RecordingObserver survivor;
    auto property = std::make_unique<PropertyInt>(m_project.get(), QStringLiteral("c"), 0);
    property->registerObserver(&survivor);
    property.reset();
    QVERIFY(survivor.heard.isEmpty());
}

void TestChanges::bulkKeepsTheLastAnnouncement()
{
    RecordingObserver observer;
    m_a->registerObserver(&observer);
    m_b->registerObserver(&observer);
    m_project->undoStack()->beginMacroAndDeferAllAnnouncements(QStringLiteral("edit"));
    m_a->setValue(2, {});
    m_b->setValue(2, {});
    m_a->setValue(3, {});
    QVERIFY(observer.heard.isEmpty());
    m_project->undoStack()->endMacroAndExecuteAnnouncements();
    QCOMPARE(observer.heard, Heard({m_b, m_a}));
}

void TestChanges::bulkOfChosenObservables()
{
    RecordingObserver observer;
    m_a->registerObserver(&observer);
    m_b->registerObserver(&observer);
    m_project->undoStack()->beginMacroAndDeferAnnouncements(QStringLiteral("edit"), {m_a});
    m_a->setValue(2, {});
    m_b->setValue(2, {});
    QCOMPARE(observer.heard, Heard({m_b}));
    m_project->undoStack()->endMacroAndExecuteAnnouncements();
    QCOMPARE(observer.heard, Heard({m_b, m_a}));
}

void TestChanges::bulkSurvivesADeadObservable()
{
    RecordingObserver observer;
    auto property = std::make_unique<PropertyInt>(m_project.get(), QStringLiteral("c"), 0);
    property->registerObserver(&observer);
    m_a->registerObserver(&observer);
    ChangeManager::instance().startBulkOperation({});
    property->announceChange();
    m_a->announceChange();
    property.reset();
    ChangeManager::instance().finishBulkOperation(true);
    QCOMPARE(observer.heard, Heard({m_a}));
}

void TestChanges::bulkDoesNotNest()
{
    RecordingObserver observer;
    m_a->registerObserver(&observer);
    m_b->registerObserver(&observer);
    ChangeManager &changes = ChangeManager::instance();
    changes.startBulkOperation({});
    m_a->announceChange();
    changes.startBulkOperation({});
    m_b->announceChange();
    changes.finishBulkOperation(true);
    QCOMPARE(observer.heard, Heard({m_b}));
}

void TestChanges::bulkWithDuplicates()
{
    RecordingObserver observer;
    m_a->registerObserver(&observer);
    ChangeManager::instance().startBulkOperation({});
    m_a->announceChange();
    m_a->announceChange();
    ChangeManager::instance().finishBulkOperation(false);
    QCOMPARE(observer.heard.count(), 2);
}

void TestChanges::chainedEditsMerge()
{
    m_a->setValue(2, QStringLiteral("one"));
    m_a->setValue(3, QStringLiteral("two"));
    GUndoStack *stack = m_project->undoStack();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), QStringLiteral("two"));
    stack->undo();
    QCOMPARE(m_a->value(), 1);
    stack->redo();
    QCOMPARE(m_a->value(), 3);
}

void TestChanges::brokenChainStaysTwoSteps()
{
    m_a->setValue(2, QStringLiteral("one"));
    m_a->setValueWithoutUndoAndAnnounceChange(7);
    m_a->setValue(3, QStringLiteral("two"));
    QCOMPARE(m_project->undoStack()->count(), 2);
}

void TestChanges::editsOfTwoPropertiesStayApart()
{
    m_a->setValue(2, {});
    m_b->setValue(2, {});
    QCOMPARE(m_project->undoStack()->count(), 2);
}

void TestChanges::rollbackLeavesNothingToRedo()
{
    GUndoStack *stack = m_project->undoStack();
    m_a->setValue(2, {});
    m_b->setValue(5, {});
    stack->rollbackLastCommand();
    QCOMPARE(m_b->value(), 1);
    QCOMPARE(stack->count(), 1);
    QVERIFY(!stack->canRedo());
}

void TestChanges::cleanState()
{
    GUndoStack *stack = m_project->undoStack();
    QVERIFY(stack->isClean());
    m_a->setValue(2, {});
    QVERIFY(!stack->isClean());
    stack->setClean();
    QVERIFY(stack->isClean());
    stack->undo();
    QVERIFY(!stack->isClean());
    stack->redo();
    QVERIFY(stack->isClean());
}

void TestChanges::viewCommandsStayClean()
{
    GUndoStack *stack = m_project->undoStack();
    m_a->setValue(2, {});
    stack->setClean();
    const auto setter = &PropertyT<int>::setValueWithoutUndoAndAnnounceChange;
    PropertyT<int> *view = m_b;
    stack->push(view, setter, 1, 8, QStringLiteral("scroll"), false, false);
    QVERIFY(stack->isClean());
    stack->beginMacro(QStringLiteral("macro"));
    stack->endMacro();
    QVERIFY(!stack->isClean());
}

void TestChanges::deferredMacroIsOneStep()
{
    GUndoStack *stack = m_project->undoStack();
    stack->beginMacroAndDeferAllAnnouncements(QStringLiteral("both"));
    m_a->setValue(2, QStringLiteral("inner"));
    m_b->setValue(2, QStringLiteral("inner"));
    stack->endMacroAndExecuteAnnouncements();
    QCOMPARE(stack->count(), 1);
    QCOMPARE(stack->undoText(), QStringLiteral("both"));
    stack->undo();
    QCOMPARE(m_a->value() + m_b->value(), 2);
}

void TestChanges::macroEndsWhenAnObserverThrows()
{
    RecordingObserver observer;
    observer.reaction = [] { throw 1; };
    m_a->registerObserver(&observer);
    GUndoStack *stack = m_project->undoStack();
    stack->beginMacroAndDeferAllAnnouncements(QStringLiteral("both"));
    m_a->setValue(2, {});
    QVERIFY_EXCEPTION_THROWN(stack->endMacroAndExecuteAnnouncements(), int);
    QVERIFY(stack->canUndo());
    QVERIFY(!ChangeManager::instance().isBulkOperationActive());
}

void TestChanges::macroBlockEndsItsMacro()
{
    GUndoStack *stack = m_project->undoStack();
    {
        const MacroBlock macro = stack->createMacroBlock(QStringLiteral("block"));
        m_a->setValue(2, {});
        m_b->setValue(2, {});
        QVERIFY(!stack->canUndo());
    }
    QCOMPARE(stack->count(), 1);
    QVERIFY(stack->canUndo());
}

QTEST_MAIN(TestChanges)
#include "tst_changes.moc"
