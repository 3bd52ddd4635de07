#pragma once

#include <QWidget>

/** A frame over a whole widget that shows that something may be dropped there. */
class DropFrame : public QWidget
{
    Q_OBJECT

public:
    /** Covers \a target, its parent; hidden at first. Mouse and drags go through it. */
    explicit DropFrame(QWidget *target);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
};
