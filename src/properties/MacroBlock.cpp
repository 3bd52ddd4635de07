#include "properties/MacroBlock.h"

#include "properties/GUndoStack.h"

MacroBlock::~MacroBlock()
{
    m_stack->endMacro();
}
