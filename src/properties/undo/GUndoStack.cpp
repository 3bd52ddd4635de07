#include "properties/undo/GUndoStack.h"

#include "properties/changes/ChangeManager.h"

#include <algorithm>

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
