#include "preview/drawing/DesignDrawing.h"

#include "preview/drawing/StitchRaster.h"
#include "preview/drawing/ThreadShades.h"
#include <algorithm>
#include <optional>
#include <QImage>
#include <QPainter>
#include <QPen>

namespace {

// What is left of a thread's colour when another one stands out.
constexpr double PaleShare = 0.2;
// Of the grey values of a thread and what it lies on.
constexpr int LeastContrast = 32;
constexpr double DarkenedShare = 0.8;
// For jumps on paper, in tenths of a millimetre.
constexpr double JumpWidth = 1.0;
// Stroking many lines that cross each other at once takes an image's painter long, and
// each on its own makes a page large.
constexpr int LinesAtOnce = 4;

QRgb mixed(QRgb color, const QColor &fabric, double share)
{
    const auto channel = [share](int part, int rest) {
        return qRound(part * share + rest * (1.0 - share));
    };
    return qRgb(channel(qRed(color), fabric.red()), channel(qGreen(color), fabric.green()),
                channel(qBlue(color), fabric.blue()));
}

// Also for rectangles without extent, which QRectF::intersects() takes for empty.
bool overlap(const QRectF &a, const QRectF &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
}

} // namespace

DesignDrawing::DesignDrawing(const QSharedPointer<const SewingOrder> &order,
                             const DrawingStyle &style)
    : m_order(order), m_style(style)
{
}

QRgb DesignDrawing::faded(QRgb color, int use) const
{
    const bool fades = m_style.highlightedUse >= 0 && m_style.highlightedUse != use;
    return fades ? mixed(color, m_style.fabric, PaleShare) : color;
}

QRgb DesignDrawing::colorOf(int use) const
{
    const QRgb color = m_order->threadUses().at(use).thread->getRGB();
    const bool isPale = qGray(m_style.fabric.rgb()) - qGray(color) < LeastContrast;
    return m_style.darkensPale && isPale ? mixed(color, Qt::black, DarkenedShare) : color;
}

template <class Draw>
bool DesignDrawing::forEachRun(const Range &range, const QRectF &visible, Draw draw) const
{
    const QVector<StitchRun> &runs = m_order->runs();
    const auto endsBefore = [](const StitchRun &run, int point) { return run.endPoint <= point; };
    auto run = std::lower_bound(runs.begin(), runs.end(), range.first, endsBefore);
    for (; run != runs.end() && run->firstPoint < range.end; ++run) {
        const bool hidden = run->kind == StitchRun::Jump && !m_style.jumps;
        if (hidden || !overlap(run->bounds, visible)) {
            continue;
        }
        const int first = std::max(run->firstPoint, range.first);
        const QPointF start = first == run->firstPoint ? run->start : m_order->pointAt(first - 1);
        if (!draw(*run, start, first, std::min(run->endPoint, range.end))) {
            return false;
        }
    }
    return true;
}

void DesignDrawing::paint(QPainter &painter, const Range &range) const
{
    painter.save();
    const QRectF all = m_order->bounds();
    forEachRun(range, all, [&](const StitchRun &run, const QPointF &start, int first, int end) {
        const bool jump = run.kind == StitchRun::Jump;
        painter.setPen(QPen(QColor(faded(colorOf(run.use), run.use)),
                            jump ? JumpWidth : StitchRaster::ThreadWidth,
                            jump ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QVector<QPointF> line{start};
        for (int i = first; i < end; ++i) {
            line.append(m_order->pointAt(i));
            if (line.size() > LinesAtOnce || i + 1 == end) {
                painter.drawPolyline(line.constData(), line.size());
                line = {line.last()};
            }
        }
        return true;
    });
    painter.restore();
}

bool DesignDrawing::paint(QImage &image, const QPointF &origin, double scale, const Range &range,
                          const std::atomic<bool> *cancelled) const
{
    StitchRaster raster(&image, origin, scale);
    const QRectF visible = QRectF(origin, QSizeF(image.size()) / scale)
                               .adjusted(-StitchRaster::ThreadWidth, -StitchRaster::ThreadWidth,
                                         StitchRaster::ThreadWidth, StitchRaster::ThreadWidth);
    std::optional<ThreadShades> shades;
    int use = -1;
    return forEachRun(range, visible, [&](const StitchRun &run, QPointF from, int first, int end) {
        if (run.use != use) {
            use = run.use;
            shades.emplace(QColor(colorOf(use)));
        }
        for (int i = first; i < end; ++i) {
            const QPointF to = m_order->pointAt(i);
            if (run.kind == StitchRun::Jump) {
                raster.drawJump(from, to, faded(colorOf(use), use));
            } else {
                const ThreadShades::Ends ends = shades->of(to - from);
                raster.drawStitch(from, to, faded(ends.from, use), faded(ends.to, use));
            }
            from = to;
        }
        return cancelled == nullptr || !cancelled->load(std::memory_order_relaxed);
    });
}
