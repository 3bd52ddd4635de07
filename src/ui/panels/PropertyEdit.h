#pragma once

#include "properties/changes/ManyObservables.h"
#include "properties/changes/Observer.h"

#include <QList>
#include <QObject>
#include <QString>

class GProject;
class Property;
class PropertyDescription;
class QWidget;

/**
 * Edits the same property of several records at once: shows their common value, or that they
 * differ, and writes a new value to all of them.
 */
class PropertyEdit : public QObject, public Observer
{
    Q_OBJECT

public:
    /** Neither is owned; both must outlive the editor. */
    PropertyEdit(PropertyDescription *description, GProject *project);

    /** The properties to edit from now on; not owned, to be replaced before they die. */
    virtual void setProperties(const QList<Property *> &properties);

    virtual QWidget *widget() = 0;
    virtual bool allValuesIdentical() const = 0;

    void observedObjectChanged(const Observable *observable) override;

protected:
    /** There is nothing to edit. */
    virtual void disableWidget() = 0;
    /** The values differ. */
    virtual void setMultiState() = 0;
    /** All have the same value. */
    virtual void displayValue() = 0;

    void updateWidget();

    GProject *project() const { return m_project; }
    const QList<Property *> &properties() const { return m_properties; }
    const PropertyDescription *description() const { return m_description; }
    QString multiText() const { return m_multiText; }

private:
    GProject *m_project;
    QList<Property *> m_properties;
    ManyObservables m_observed{this};
    PropertyDescription *m_description;
    bool m_updatePending = false;
    QString m_multiText;
};
