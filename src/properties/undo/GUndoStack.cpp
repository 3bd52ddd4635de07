#include "properties/undo/GUndoStack.h"

#include "properties/changes/ChangeManager.h"

#include <algorithm>

static int weightOf(const QUndoCommand *command)
{
    int weight = 1;
    for (int i = 0; i < command->childCount(); ++i)
        weight += weightOf(command->child(i));
    return weight;
}

GUndoStack::GUndoStack()
{
    setUndoLimit(MaximumSteps);
}

void GUndoStack::push(QUndoCommand *command)
{
    makeRoom();
    QUndoStack::push(command);
}

void GUndoStack::beginMacro(const QString &text)
{
    makeRoom();
    QUndoStack::beginMacro(text);
}

/** QUndoStack knows no other limit than the number of steps, and a step may hold any number. */
void GUndoStack::makeRoom()
{
    // That is how it is within a macro, too, where nothing can be forgotten.
    if (!canUndo())
        return;
    int weight = 0;
    for (int i = 0; i < count(); ++i)
        weight += weightOf(command(i));
    if (weight <= MaximumCommands)
        return;
    const bool clean = isClean();
    clear();
    if (!clean)
        resetClean();
}

MacroBlock GUndoStack::createMacroBlock(const QString &text)
{
    beginMacro(text);
    return MacroBlock(this);
}

void GUndoStack::beginMacroAndDeferAnnouncements(const QString &text,
                                                 const QList<const Observable *> &observables)
{
    beginMacro(text);
    ChangeManager::instance().startBulkOperation(observables);
}

void GUndoStack::beginMacroAndDeferAllAnnouncements(const QString &text)
{
    beginMacroAndDeferAnnouncements(text, {});
}

void GUndoStack::endMacroAndExecuteAnnouncements()
{
    // The macro is to end also when an observer throws.
    const MacroBlock macro(this);
    ChangeManager::instance().finishBulkOperation(true);
}

void GUndoStack::rollbackLastCommand()
{
    undo();
    // The stack discards an obsolete command, but cuts off what could be redone first.
    auto *nothing = new QUndoCommand(QStringLiteral("nothing"));
    nothing->setObsolete(true);
    push(nothing);
}

bool GUndoStack::isClean() const
{
    if (QUndoStack::isClean())
        return true;
    if (cleanIndex() < 0)
        return false;
    const auto [from, to] = std::minmax({cleanIndex(), index()});
    for (int i = from; i < to; ++i) {
        const auto *edit = dynamic_cast<const GenericUndoCommandBase *>(command(i));
        if (!edit || edit->modifiesDataModel())
            return false;
    }
    return true;
}
