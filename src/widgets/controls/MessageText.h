#pragma once

#include <QTextEdit>

/**
 * The text of a message, for reading and copying. It is shown as it is, whatever it looks like,
 * and wrapped inside words that no line could hold, which a label cannot.
 */
class MessageText : public QTextEdit
{
    Q_OBJECT

public:
    explicit MessageText(const QString &text, QWidget *parent = nullptr);

    /** Takes the size of the text in \a font, scrolling what is too much for a screen. */
    void fit(const QFont &font);
};
