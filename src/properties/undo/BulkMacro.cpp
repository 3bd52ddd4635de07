#include "properties/undo/BulkMacro.h"

#include "base/GDebug.h"
#include "properties/undo/GUndoStack.h"

#include <utility>

BulkMacro::BulkMacro(GUndoStack *stack, const QString &text,
                     const QList<const Observable *> &observables)
    : m_stack(stack)
{
    stack->beginMacroAndDeferAnnouncements(text, observables);
}

BulkMacro::~BulkMacro()
{
    if (!m_stack)
        return;
    try {
        finish();
    } catch (...) {
        gWarning("BulkMacro") << "an observer failed while another failure was passed on";
    }
}

void BulkMacro::finish()
{
    std::exchange(m_stack, nullptr)->endMacroAndExecuteAnnouncements();
}
