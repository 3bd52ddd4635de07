#pragma once

#include <QUndoCommand>

/** An undo command that knows whether it changes the document or only a view of it. */
class GenericUndoCommandBase : public QUndoCommand
{
public:
    /** Commands that follow each other are offered for merging when their @p id is equal, not -1.
     */
    GenericUndoCommandBase(const QString &text, QUndoCommand *parent, int id,
                           bool modifiesDataModel);

    int id() const override { return m_commandId; }
    bool modifiesDataModel() const { return m_modifiesDataModel; }

private:
    int m_commandId;
    bool m_modifiesDataModel;
};

/**
 * Sets a value of an object through a member function, back and forth. The object
 * must outlive the command.
 */
template <class Object, class Setter, class Value>
class GenericUndoCommand : public GenericUndoCommandBase
{
public:
    GenericUndoCommand(Object *object, Setter setter, const Value &oldValue, const Value &newValue,
                       const QString &text, int id, bool modifiesDataModel)
        : GenericUndoCommandBase(text, nullptr, id, modifiesDataModel), m_object(object),
          m_setter(setter), m_oldValue(oldValue), m_newValue(newValue)
    {
    }

    void undo() override { (m_object->*m_setter)(m_oldValue); }
    void redo() override { (m_object->*m_setter)(m_newValue); }

    /** Takes over a later edit of the same value that begins where this one ends. */
    bool mergeWith(const QUndoCommand *command) override
    {
        const auto *other = dynamic_cast<const GenericUndoCommand *>(command);
        if (!other || m_object != other->m_object || m_setter != other->m_setter ||
            m_newValue != other->m_oldValue)
            return false;
        m_newValue = other->m_newValue;
        setText(other->text());
        return true;
    }

private:
    Object *m_object;
    Setter m_setter;
    Value m_oldValue;
    Value m_newValue;
};
