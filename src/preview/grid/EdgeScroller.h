#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

class QAbstractScrollArea;

/** Scrolls a view, the faster the farther, while something is dragged to its edge or beyond. */
class EdgeScroller : public QObject
{
    Q_OBJECT

public:
    /** @p view owns this. */
    explicit EdgeScroller(QAbstractScrollArea *view);

    /** The pointer is at @p pos, in pixels of the viewport. */
    void dragTo(const QPoint &pos);
    void stop();

signals:
    /** The sheet moved below the pointer, which stayed. */
    void scrolled();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QAbstractScrollArea *m_view;
    QPoint m_step; ///< pixels per tick
    QBasicTimer m_timer;
};
