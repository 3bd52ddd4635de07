#include "preview/render/DesignPainter.h"

#include "base/IAbortCheck.h"
#include "embroidery/EmbThread.h"
#include "preview/render/StitchLight.h"
#include <algorithm>
#include <cmath>
#include <QColor>

using Embroidery::StitchBlock;

namespace {

/** So that asking costs nothing, and the answer still comes within a few milliseconds. */
constexpr int StitchesBetweenChecks = 1024;

// A design of 200,000 stitches, more than machines take, comes to some 60 a pixel in a
// preview of 400 pixels. These are worth about 0.3 and 0.9 seconds there.
constexpr qint64 OrdinaryPerPixel = 600;
constexpr qint64 ExtraordinaryPerPixel = 1600;
/** Of a small picture the stitches themselves cost more than the pixels. */
constexpr qint64 FewestPixels = qint64(400) * 400;

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

QRgb shaded(QRgb thread, const QVector3D &light)
{
    const auto channel = [](int value, float factor) {
        return std::min(255, int(float(value) / 255.0f * factor * 255.0f));
    };
    return qRgb(channel(qRed(thread), light.x()), channel(qGreen(thread), light.y()),
                channel(qBlue(thread), light.z()));
}

} // namespace

DesignPainter::Budget DesignPainter::Budget::forPicture(const QSize &size)
{
    const qint64 pixels = std::max(qint64(size.width()) * size.height(), FewestPixels);
    return {pixels * OrdinaryPerPixel, pixels * ExtraordinaryPerPixel};
}

DesignPainter::DesignPainter(StitchPainter &painter, const StitchLight &light,
                             const IAbortCheck &abort)
    : m_painter(painter), m_light(light), m_abort(abort)
{
}

bool DesignPainter::paint(const QList<StitchBlock> &blocks, const Budget &budget)
{
    qint64 work = 0;
    for (const StitchBlock &block : blocks) {
        for (int i = 1; i < block.points.size(); ++i)
            work += m_painter.work(block.points.at(i - 1), block.points.at(i));
    }
    return work <= budget.ordinary ? paintUpwards(blocks)
                                   : paintDownwards(blocks, work, budget.extraordinary);
}

bool DesignPainter::paintUpwards(const QList<StitchBlock> &blocks)
{
    for (const StitchBlock &block : blocks) {
        const QRgb thread = block.thread->getRGB();
        for (int i = 1; i < block.points.size(); ++i) {
            const QPointF &from = block.points.at(i - 1);
            const QPointF &to = block.points.at(i);
            if (isAborted())
                return false;
            if (isFinite(from) && isFinite(to))
                m_painter.paint(from, to, colors(from, to, thread));
        }
    }
    return true;
}

bool DesignPainter::paintDownwards(const QList<StitchBlock> &blocks, qint64 work, qint64 budget)
{
    const qint64 half = budget / 2;
    qint64 spent = 0;
    int stride = 1;
    int toSkip = 0;
    for (int b = blocks.size() - 1; b >= 0; --b) {
        const StitchBlock &block = blocks.at(b);
        const QRgb thread = block.thread->getRGB();
        for (int i = block.points.size() - 1; i > 0; --i) {
            if (--toSkip > 0)
                continue;
            const QPointF &from = block.points.at(i - 1);
            const QPointF &to = block.points.at(i);
            if (isAborted())
                return false;
            if (!m_painter.isOpen())
                return true;
            if (isFinite(from) && isFinite(to))
                m_painter.paintBelow(from, to, colors(from, to, thread));
            spent += m_painter.work(from, to);
            if (stride == 1 && spent > half)
                stride = int((work - spent) / (budget - half)) + 1;
            toSkip = stride;
        }
    }
    return true;
}

StitchPainter::Colors DesignPainter::colors(const QPointF &from, const QPointF &to,
                                            QRgb thread) const
{
    const StitchLight::Ends light = m_light.on(from, to);
    return {shaded(thread, light.from), shaded(thread, light.to)};
}

bool DesignPainter::isAborted()
{
    if (++m_stitchesSinceCheck < StitchesBetweenChecks)
        return false;
    m_stitchesSinceCheck = 0;
    return m_abort.abortState() != 0;
}
