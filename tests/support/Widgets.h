#pragma once

#include <algorithm>
#include <QAbstractButton>
#include <QLabel>

/** What the visible labels of a window say, without those that say nothing. */
inline QStringList visibleTexts(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}

/** Whether a label of the window says just this. */
inline bool says(const QWidget &window, const QString &text)
{
    const auto labels = window.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text() == text; });
}

/** The button whose text begins so, mnemonics aside; null when there is none. */
template <class Button = QAbstractButton>
Button *buttonOf(const QWidget &window, const QString &text)
{
    for (Button *button : window.findChildren<Button *>()) {
        if (button->text().remove('&').startsWith(text))
            return button;
    }
    return nullptr;
}
