#pragma once

#include "support/Widgets.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QtTest>

#include <functional>

/**
 * Presses a button of every message box that comes up, and keeps what the boxes said. The button
 * is a standard one, or the next one of a list of texts, of which the last goes on.
 */
class MessageBoxes : public QObject
{
public:
    explicit MessageBoxes(QMessageBox::StandardButton button = QMessageBox::Ok) : m_button(button)
    {
        qApp->installEventFilter(this);
    }

    explicit MessageBoxes(const QStringList &buttons,
                          const std::function<void()> &beforeAnswer = {})
        : MessageBoxes()
    {
        m_buttons = buttons;
        m_beforeAnswer = beforeAnswer;
    }

    /** Presses this one from now on. */
    void press(QMessageBox::StandardButton button) { m_button = button; }

    int count() const { return m_titles.size(); }

    /** Of the last box; empty before the first. */
    QString title() const { return m_titles.value(count() - 1); }
    QString text() const { return m_texts.value(count() - 1); }
    QString informativeText() const { return m_informativeTexts.value(count() - 1); }
    QString allTexts() const
    {
        QStringList parts{title(), text(), informativeText()};
        parts.removeAll(QString());
        return parts.join(QLatin1Char('|'));
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(object)) {
            const QPointer<QMessageBox> box = static_cast<QMessageBox *>(object);
            QTimer::singleShot(0, this, [this, box] { answer(box); });
        }
        return QObject::eventFilter(object, event);
    }

private:
    void answer(QMessageBox *box)
    {
        if (!box || !box->isVisible())
            return;
        m_titles += box->windowTitle();
        m_texts += plain(box->text());
        m_informativeTexts += plain(box->informativeText());
        if (m_beforeAnswer)
            m_beforeAnswer();
        QAbstractButton *button = box->button(m_button);
        if (!m_buttons.isEmpty())
            button = buttonOf(*box, m_buttons.value(qMin(count(), m_buttons.size()) - 1));
        if (button) {
            button->click();
        } else {
            QTest::qFail("a message box lacks the awaited button", __FILE__, __LINE__);
            box->reject();
        }
    }

    /** Without the places where a long word may be broken. */
    static QString plain(QString text) { return text.remove(QChar(0x200b)); }

    QMessageBox::StandardButton m_button;
    QStringList m_buttons;
    std::function<void()> m_beforeAnswer;
    QStringList m_titles;
    QStringList m_texts;
    QStringList m_informativeTexts;
};
