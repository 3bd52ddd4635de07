#include "properties/changes/ChangeManager.h"
#include "properties/core/GProject.h"
#include "properties/core/PropertyValues.h"
#include "properties/RecordingObserver.h"
#include "properties/undo/GUndoStack.h"
#include "support/Rows.h"

#include <memory>
#include <QtTest>
#include <vector>

using Heard = QList<const Observable *>;

class TestChanges : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_project = std::make_unique<GProject>("document", QList<PropertyDescription *>());
        m_a = m_project->addProperty(new PropertyInt(m_project.get(), "a", 1));
        m_b = m_project->addProperty(new PropertyInt(m_project.get(), "b", 1));
    }

    void tellsTheLatestObserverFirst()
    {
        // A crowd of pairs makes the tables grow meanwhile.
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
        // Again, which changes nothing.
        m_a->registerObserver(&observers.front());
        m_a->announceChange();
        QCOMPARE(order.count(), 20);
        QVERIFY(std::is_sorted(order.rbegin(), order.rend()));
    }

    void walksASnapshot()
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
        QCOMPARE(late.heard.count(), 2);
        QCOMPARE(fresh.heard.count(), 1);
    }

    void nestedChangesAreToldAtOnce()
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

    void theDyingLeave()
    {
        RecordingObserver survivor;
        auto observer = std::make_unique<RecordingObserver>();
        m_a->registerObserver(&survivor);
        m_a->registerObserver(observer.get());
        observer.reset();
        m_a->announceChange();
        QCOMPARE(std::exchange(survivor.heard, {}), Heard({m_a}));

        auto property = std::make_unique<PropertyInt>(m_project.get(), "c", 0);
        property->registerObserver(&survivor);
        property.reset();
        QVERIFY(survivor.heard.isEmpty());
    }

    void bulkKeepsTheLastAnnouncement_data()
    {
        const Rows<bool, QString, QString> row("all", "heardInside", "heard");
        row("all", true, {}, "ba");
        row("only a", false, "b", "ba");
    }

    void bulkKeepsTheLastAnnouncement()
    {
        QFETCH(bool, all);
        QString heard;
        RecordingObserver ofA;
        RecordingObserver ofB;
        ofA.reaction = [&heard] { heard += QLatin1Char('a'); };
        ofB.reaction = [&heard] { heard += QLatin1Char('b'); };
        m_a->registerObserver(&ofA);
        m_b->registerObserver(&ofB);
        GUndoStack *stack = m_project->undoStack();
        if (all)
            stack->beginMacroAndDeferAllAnnouncements("edit");
        else
            stack->beginMacroAndDeferAnnouncements("edit", {m_a});
        m_a->setValue(2, {});
        m_b->setValue(2, {});
        m_a->setValue(3, {});
        QTEST(heard, "heardInside");
        stack->endMacroAndExecuteAnnouncements();
        QTEST(heard, "heard");
        QCOMPARE(stack->count(), 1);
        stack->undo();
        QCOMPARE(m_a->value() + m_b->value(), 2);
    }

    void bulkForgetsTheInterruptedAndTheDead()
    {
        RecordingObserver observer;
        auto dying = std::make_unique<PropertyInt>(m_project.get(), "c", 0);
        dying->registerObserver(&observer);
        m_a->registerObserver(&observer);
        m_b->registerObserver(&observer);
        ChangeManager &changes = ChangeManager::instance();
        changes.startBulkOperation({});
        m_a->announceChange();
        changes.startBulkOperation({});
        dying->announceChange();
        m_b->announceChange();
        dying.reset();
        changes.finishBulkOperation(true);
        QCOMPARE(observer.heard, Heard({m_b}));
    }

    void onlyChainedEditsMerge()
    {
        GUndoStack *stack = m_project->undoStack();
        m_a->setValue(2, "one");
        m_a->setValue(3, "two");
        QCOMPARE(stack->count(), 1);
        QCOMPARE(stack->undoText(), "two");
        m_b->setValue(3, {});
        QCOMPARE(stack->count(), 2);
        m_b->setValueWithoutUndoAndAnnounceChange(7);
        m_b->setValue(4, {});
        QCOMPARE(stack->count(), 3);
        stack->setIndex(0);
        QCOMPARE(m_a->value(), 1);
        stack->redo();
        QCOMPARE(m_a->value(), 3);
    }

    void rollbackLeavesNothingToRedo()
    {
        GUndoStack *stack = m_project->undoStack();
        m_a->setValue(2, {});
        m_b->setValue(5, {});
        stack->rollbackLastCommand();
        QCOMPARE(m_b->value(), 1);
        QCOMPARE(stack->count(), 1);
        QVERIFY(!stack->canRedo());
    }

    void cleanState()
    {
        GUndoStack *stack = m_project->undoStack();
        m_a->setValue(2, {});
        QVERIFY(!stack->isClean());
        stack->setClean();
        stack->undo();
        QVERIFY(!stack->isClean());
        stack->redo();
        QVERIFY(stack->isClean());

        const auto setter = &PropertyT<int>::setValueWithoutUndoAndAnnounceChange;
        PropertyT<int> *view = m_b;
        stack->push(view, setter, 1, 8, "scroll", false, false);
        QVERIFY(stack->isClean());
        stack->createMacroBlock("macro");
        QVERIFY(!stack->isClean());
        QVERIFY(stack->canUndo());
        stack->resetClean();
        QVERIFY(!stack->isClean());
    }

    void forgetsTheOldest()
    {
        GUndoStack *stack = m_project->undoStack();
        for (int i = 0; i < 10; ++i)
            bigStep();
        QCOMPARE(stack->count(), 1);
        const int value = m_a->value();
        stack->undo();
        QVERIFY(m_a->value() < value);
        stack->redo();
        for (int i = 0; i < 2 * GUndoStack::MaximumSteps; ++i) {
            m_a->setValue(m_a->value() + 1, QString());
            m_b->setValue(m_b->value() + 1, QString());
        }
        QCOMPARE(stack->count(), GUndoStack::MaximumSteps);
    }

    void staysModifiedWhenItForgets()
    {
        GUndoStack *stack = m_project->undoStack();
        bigStep();
        stack->setClean();
        // The saved state itself is forgotten; going back leads to another.
        bigStep();
        bigStep();
        while (stack->canUndo())
            stack->undo();
        QVERIFY(!stack->isClean());
        stack->setClean();
        QVERIFY(stack->isClean());

        for (int i = 0; i < GUndoStack::MaximumSteps; ++i) {
            m_a->setValue(m_a->value() + 1, QString());
            m_b->setValue(m_b->value() + 1, QString());
        }
        while (stack->canUndo())
            stack->undo();
        QVERIFY(!stack->isClean());
    }

    void macroEndsWhenAnObserverThrows()
    {
        RecordingObserver observer;
        observer.reaction = [] { throw 1; };
        m_a->registerObserver(&observer);
        GUndoStack *stack = m_project->undoStack();
        stack->beginMacroAndDeferAllAnnouncements("both");
        m_a->setValue(2, {});
        QVERIFY_EXCEPTION_THROWN(stack->endMacroAndExecuteAnnouncements(), int);
        QVERIFY(stack->canUndo());
        QVERIFY(!ChangeManager::instance().isBulkOperationActive());
    }

private:
    /** One of more commands than the stack is to hold. */
    void bigStep()
    {
        const auto macro = m_project->undoStack()->createMacroBlock("big");
        for (int i = 0; i <= GUndoStack::MaximumCommands / 2; ++i) {
            m_a->setValue(m_a->value() + 1, QString());
            m_b->setValue(m_b->value() + 1, QString());
        }
    }

    std::unique_ptr<GProject> m_project;
    PropertyInt *m_a = nullptr;
    PropertyInt *m_b = nullptr;
};

QTEST_MAIN(TestChanges)
#include "tst_changes.moc"
