#pragma once

#include "properties/core/Property.h"

#include <QByteArray>

/** A large binary value; files hold it beside themselves, under its unique id. */
class PropertyByteArray : public Property
{
public:
    PropertyByteArray(GProject *project, const QString &name, const QByteArray &defaultValue);

    void acceptVisitor(PropertyVisitor *visitor) override;

    /** Undoable; nothing at all when the value is equal. */
    virtual void setValue(const QByteArray &newValue, const QString &undoText);

    /** Assigns and announces, also when the value is equal. */
    void setValueWithoutUndoAndAnnounceChange(const QByteArray &newValue);

    QByteArray value() const { return m_value; }
    QString uniqueId() const { return m_uniqueId; }
    void setUniqueId(const QString &id) { m_uniqueId = id; }

    /** The compressed difference that applyDelta() needs to make @p newData of @p oldData. */
    static QByteArray calculateDelta(const QByteArray &oldData, const QByteArray &newData);

    /** Changes the value by a difference, without undo, and announces. */
    void applyDelta(const QByteArray &delta);

private:
    QByteArray m_value;
    QString m_uniqueId;
};
