#pragma once

#include <QObject>

class QWidget;

/**
 * Brings the keyboard home when a modal window goes as soon as it has come.
 *
 * A window manager may tell of the activation of a window that has been hidden meanwhile, while
 * the keyboard never left the window below. Without this, Qt would go on sending the keys to the
 * window that is gone.
 */
class FocusReturn : public QObject
{
    Q_OBJECT

public:
    /** Watches \a window, which owns this and has the window to return to as its parent. */
    explicit FocusReturn(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bringHome();

    QWidget *m_window;
};
