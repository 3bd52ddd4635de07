#pragma once

#include <QTextEdit>

/**
 * A plain-text edit that grows with its text, from three lines up to a most; beyond that it
 * scrolls. Tab moves the focus on.
 */
class GResizingTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit GResizingTextEdit(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void followText();
    int heightOfLines(int lines) const;

    int m_height = 0;
};
