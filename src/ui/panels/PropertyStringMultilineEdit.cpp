#include "ui/panels/PropertyStringMultilineEdit.h"

#include "widgets/controls/GResizingTextEdit.h"

#include <QScopedValueRollback>

PropertyStringMultilineEdit::PropertyStringMultilineEdit(QWidget *parent,
                                                         PropertyDescriptionString *description,
                                                         GProject *project)
    : PropertyEditT(description, project), m_edit(new GResizingTextEdit(parent))
{
    setParent(parent);
    m_edit->setObjectName(
        QStringLiteral("PropertyStringMultilineEdit(%1)").arg(description->propertyName()));
    m_edit->setAccessibleName(description->displayName());
    if (!description->description().isEmpty())
        m_edit->setToolTip(description->description());
    connect(m_edit, &QTextEdit::textChanged, this, &PropertyStringMultilineEdit::textChanged);
    PropertyStringMultilineEdit::disableWidget();
}

QWidget *PropertyStringMultilineEdit::widget()
{
    return m_edit;
}

void PropertyStringMultilineEdit::disableWidget()
{
    if (!m_edit)
        return;
    setTextSilently(QString());
    m_edit->setPlaceholderText(QString());
    m_edit->setEnabled(false);
}

void PropertyStringMultilineEdit::setMultiState()
{
    if (!m_edit)
        return;
    setTextSilently(QString());
    m_edit->setPlaceholderText(multiText());
    m_edit->setEnabled(true);
}

void PropertyStringMultilineEdit::displayValue()
{
    if (!m_edit)
        return;
    // Setting an equal text would take the cursor away from where the user types.
    if (value() != m_edit->toPlainText())
        setTextSilently(value());
    m_edit->setPlaceholderText(QString());
    m_edit->setEnabled(true);
}

void PropertyStringMultilineEdit::textChanged()
{
    if (m_signalsActive)
        setValue(m_edit->toPlainText());
}

void PropertyStringMultilineEdit::setTextSilently(const QString &text)
{
    const QScopedValueRollback<bool> silence(m_signalsActive, false);
    m_edit->setPlainText(text);
}
