#include "properties/undo/MacroBlock.h"

#include "properties/undo/GUndoStack.h"

MacroBlock::~MacroBlock()
{
    m_stack->endMacro();
}
