#pragma once

#include <QtGlobal>

class GUndoStack;

/** Ends a macro of its undo stack when it goes out of scope, however that comes about. */
class MacroBlock
{
public:
    explicit MacroBlock(GUndoStack *stack) : m_stack(stack) {}
    ~MacroBlock();

private:
    Q_DISABLE_COPY(MacroBlock)

    GUndoStack *m_stack;
};
