#include "properties/undo/GenericUndoCommand.h"

GenericUndoCommandBase::GenericUndoCommandBase(const QString &text, QUndoCommand *parent, int id,
                                               bool modifiesDataModel)
    : QUndoCommand(text, parent), m_commandId(id), m_modifiesDataModel(modifiesDataModel)
{
}
