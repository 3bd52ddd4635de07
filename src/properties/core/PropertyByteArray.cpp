#include "properties/core/PropertyByteArray.h"

#include "properties/core/PropertyVisitor.h"
#include "properties/undo/GUndoStack.h"

static QByteArray resizedWithZeros(QByteArray data, int size)
{
    if (data.size() < size)
        data.append(QByteArray(size - data.size(), '\0'));
    data.truncate(size);
    return data;
}

PropertyByteArray::PropertyByteArray(GProject *project, const QString &name,
                                     const QByteArray &defaultValue)
    : Property(project, name), m_value(defaultValue)
{
}

void PropertyByteArray::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyByteArray::setValue(const QByteArray &newValue, const QString &undoText)
{
    undoStack()->push(this, &PropertyByteArray::setValueWithoutUndoAndAnnounceChange, m_value,
                      newValue, undoText, false, true);
}

void PropertyByteArray::setValueWithoutUndoAndAnnounceChange(const QByteArray &newValue)
{
    beforeChange();
    m_value = newValue;
    announceChange();
}

QByteArray PropertyByteArray::calculateDelta(const QByteArray &oldData, const QByteArray &newData)
{
    const QByteArray base = resizedWithZeros(oldData, newData.size());
    QByteArray delta(newData.size(), Qt::Uninitialized);
    for (int i = 0; i < delta.size(); ++i)
        delta[i] = char(uchar(newData.at(i)) - uchar(base.at(i)));
    return qCompress(delta);
}

void PropertyByteArray::applyDelta(const QByteArray &delta)
{
    const QByteArray difference = qUncompress(delta);
    QByteArray value = resizedWithZeros(m_value, difference.size());
    for (int i = 0; i < value.size(); ++i)
        value[i] = char(uchar(value.at(i)) + uchar(difference.at(i)));
    setValueWithoutUndoAndAnnounceChange(value);
}
