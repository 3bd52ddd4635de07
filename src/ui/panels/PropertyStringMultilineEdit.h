#pragma once

#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "ui/panels/PropertyEditT.h"

#include <QPointer>

class GResizingTextEdit;

/**
 * A field of several lines for a text that one or many records have. What is typed over
 * differing texts can be undone in the field: each record then gets its own text back.
 */
class PropertyStringMultilineEdit : public PropertyEditT<PropertyString, QString>
{
    Q_OBJECT

public:
    /** The field is made as a child of \a parent, which also owns this editor. */
    PropertyStringMultilineEdit(QWidget *parent, PropertyDescriptionString *description,
                                GProject *project);

    void setProperties(const QList<Property *> &properties) override;
    QWidget *widget() override;

protected:
    void disableWidget() override;
    void setMultiState() override;
    void displayValue() override;

private:
    void textChanged();
    void setTextSilently(const QString &text);
    bool isUndone() const;

    QPointer<GResizingTextEdit> m_edit;
    bool m_signalsActive = true;
    bool m_showsMultipleValues = false;
    /** What the records had before something was typed over their differing texts. */
    QStringList m_typedOver;
};
