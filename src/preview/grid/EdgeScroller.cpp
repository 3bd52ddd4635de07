#include "preview/grid/EdgeScroller.h"

#include <algorithm>
#include <QAbstractScrollArea>
#include <QScrollBar>

namespace {

constexpr int EdgeWidth = 16; // pixels inside of the viewport
constexpr int TickMs = 30;
constexpr int LargestStep = 60; // pixels per tick

// Negative towards the start, positive towards the end, zero in the middle.
int stepAt(int pos, int length)
{
    const int before = std::min(pos - EdgeWidth, 0);
    const int behind = std::max(pos - (length - EdgeWidth), 0);
    return std::clamp(before + behind, -LargestStep, LargestStep);
}

} // namespace

EdgeScroller::EdgeScroller(QAbstractScrollArea *view) : QObject(view), m_view(view) {}

void EdgeScroller::dragTo(const QPoint &pos)
{
    const QSize size = m_view->viewport()->size();
    m_step = QPoint(stepAt(pos.x(), size.width()), stepAt(pos.y(), size.height()));
    if (m_step.isNull()) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_timer.start(TickMs, this);
    }
}

void EdgeScroller::stop()
{
    m_timer.stop();
}

void EdgeScroller::timerEvent(QTimerEvent *)
{
    QScrollBar *horizontal = m_view->horizontalScrollBar();
    QScrollBar *vertical = m_view->verticalScrollBar();
    const QPoint before(horizontal->value(), vertical->value());
    horizontal->setValue(before.x() + m_step.x());
    vertical->setValue(before.y() + m_step.y());
    if (before != QPoint(horizontal->value(), vertical->value())) {
        emit scrolled();
    }
}
