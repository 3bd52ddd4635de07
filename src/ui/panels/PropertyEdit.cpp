#include "ui/panels/PropertyEdit.h"

#include "properties/core/Property.h"

#include <QTimer>

PropertyEdit::PropertyEdit(PropertyDescription *description, GProject *project)
    : m_project(project), m_description(description), m_multiText(tr("multiple values"))
{
}

void PropertyEdit::setProperties(const QList<Property *> &properties)
{
    m_observed.set(properties);
    m_properties = properties;
    updateWidget();
}

void PropertyEdit::observedObjectChanged(const Observable *)
{
    if (m_updatePending)
        return;
    m_updatePending = true;
    QTimer::singleShot(0, this, &PropertyEdit::updateWidget);
}

void PropertyEdit::updateWidget()
{
    if (m_properties.isEmpty())
        disableWidget();
    else if (allValuesIdentical())
        displayValue();
    else
        setMultiState();
    m_updatePending = false;
}
