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

void PropertyStringMultilineEdit::setProperties(const QList<Property *> &properties)
{
    const bool same = properties == this->properties();
    PropertyEditT::setProperties(properties);
    if (same || !m_edit)
        return;
    // What was typed into other records is not to be undone in these.
    m_typedOver.clear();
    m_edit->document()->clearUndoRedoStacks();
}

QWidget *PropertyStringMultilineEdit::widget()
{
    return m_edit;
}

void PropertyStringMultilineEdit::disableWidget()
{
    if (!m_edit)
        return;
    m_showsMultipleValues = false;
    setTextSilently(QString());
    m_edit->setPlaceholderText(QString());
    m_edit->setEnabled(false);
}

void PropertyStringMultilineEdit::setMultiState()
{
    if (!m_edit)
        return;
    m_showsMultipleValues = true;
    setTextSilently(QString());
    m_edit->setPlaceholderText(multiText());
    m_edit->setEnabled(true);
}

void PropertyStringMultilineEdit::displayValue()
{
    if (!m_edit)
        return;
    m_showsMultipleValues = false;
    setTextSilently(value());
    m_edit->setPlaceholderText(QString());
    m_edit->setEnabled(true);
}

void PropertyStringMultilineEdit::textChanged()
{
    if (!m_signalsActive)
        return;
    if (isUndone()) {
        setValues(m_typedOver);
        m_typedOver.clear();
        // The field tells so later only, and may be typed into before.
        m_showsMultipleValues = !allValuesIdentical();
        return;
    }
    if (m_showsMultipleValues && m_typedOver.isEmpty())
        m_typedOver = values();
    setValue(m_edit->toPlainText());
}

/** Whether all that was typed over differing texts is undone: not deleted, which is an edit. */
bool PropertyStringMultilineEdit::isUndone() const
{
    return !m_typedOver.isEmpty() && m_edit->document()->isEmpty() &&
           !m_edit->document()->isUndoAvailable();
}

void PropertyStringMultilineEdit::setTextSilently(const QString &text)
{
    // Setting an equal text would take the cursor away from where the user types, and all that
    // he can undo.
    if (text == m_edit->toPlainText())
        return;
    const QScopedValueRollback<bool> silence(m_signalsActive, false);
    m_edit->setPlainText(text);
    m_typedOver.clear();
}
