#pragma once

#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionValues.h"
#include "ui/panels/PropertyEditT.h"

#include <QPointer>

class GResizingTextEdit;

/** A field of several lines for a text that one or many records have. */
class PropertyStringMultilineEdit : public PropertyEditT<PropertyString, QString>
{
    Q_OBJECT

public:
    /** The field is made as a child of \a parent, which also owns this editor. */
    PropertyStringMultilineEdit(QWidget *parent, PropertyDescriptionString *description,
                                GProject *project);

    QWidget *widget() override;

protected:
    void disableWidget() override;
    void setMultiState() override;
    void displayValue() override;

private:
    void textChanged();
    void setTextSilently(const QString &text);

    QPointer<GResizingTextEdit> m_edit;
    bool m_signalsActive = true;
};
