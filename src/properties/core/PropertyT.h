#pragma once

#include "properties/core/Property.h"
#include "properties/undo/GUndoStack.h"

/** A property that holds one value of type T. */
template <class T>
class PropertyT : public Property
{
public:
    PropertyT(GProject *project, const QString &name, const T &defaultValue)
        : Property(project, name), m_value(defaultValue)
    {
    }

    const T &value() const { return m_value; }

    /** The user's change: undoable, and nothing at all when the value is equal. */
    virtual void setValue(const T &newValue, const QString &undoText)
    {
        undoStack()->push(this, &PropertyT::setValueWithoutUndoAndAnnounceChange, m_value, newValue,
                          undoText, true, true);
    }

    /** Assigns and announces, also when the value is equal. */
    void setValueWithoutUndoAndAnnounceChange(const T &newValue)
    {
        beforeChange();
        m_value = newValue;
        announceChange();
    }

private:
    T m_value;
};
