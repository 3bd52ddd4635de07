#pragma once

#include "base/Error.h"
#include "properties/core/GProject.h"
#include "properties/descriptions/PropertyDescription.h"
#include "properties/undo/BulkMacro.h"
#include "ui/panels/PropertyEdit.h"

#include <algorithm>

/** The part of an editor that knows the type: P is the property class, T its value. */
template <class P, class T>
class PropertyEditT : public PropertyEdit
{
public:
    using PropertyEdit::PropertyEdit;

    /** @throws ErrorTypeConflict when one of them is no P */
    void setProperties(const QList<Property *> &properties) override
    {
        QList<P *> typed;
        typed.reserve(properties.count());
        for (Property *property : properties) {
            auto *match = dynamic_cast<P *>(property);
            if (!match)
                throw ErrorTypeConflict(
                    PropertyEdit::tr("property editor: type conflict in multi-selection'"));
            typed.append(match);
        }
        m_typed = typed;
        PropertyEdit::setProperties(properties);
    }

    bool allValuesIdentical() const override
    {
        return std::all_of(m_typed.begin(), m_typed.end(), [this](const P *property) {
            return property->value() == m_typed.first()->value();
        });
    }

    /** The value of the first property; there must be one. */
    T value() const { return m_typed.first()->value(); }

    /** Writes to all properties, as one undo step. */
    void setValue(const T &newValue)
    {
        if (m_typed.count() == 1)
            m_typed.first()->setValue(newValue, undoText());
        else if (m_typed.count() > 1)
            setAllValues([&newValue](int) { return newValue; });
    }

    /** Those of all properties, in their order. */
    QList<T> values() const
    {
        QList<T> values;
        values.reserve(m_typed.count());
        for (const P *property : m_typed)
            values.append(property->value());
        return values;
    }

    /** Writes to each property its own of as many values, as one undo step. */
    void setValues(const QList<T> &newValues)
    {
        setAllValues([&newValues](int index) { return newValues.at(index); });
    }

private:
    QString undoText() const
    {
        return PropertyEdit::tr("'%1' change").arg(description()->displayName());
    }

    template <class ValueAt>
    void setAllValues(ValueAt valueAt)
    {
        const QString text = undoText() + QStringLiteral(" (%1x)").arg(m_typed.count());
        const QList<const Observable *> observables(m_typed.begin(), m_typed.end());
        BulkMacro macro(project()->undoStack(), text, observables);
        for (int i = 0; i < m_typed.count(); ++i) {
            const T newValue = valueAt(i);
            if (!(m_typed.at(i)->value() == newValue))
                m_typed.at(i)->setValue(newValue, text);
        }
        macro.finish();
    }

    QList<P *> m_typed;
};
