#include "preview/drawing/SewingOrder.h"

#include <algorithm>
#include <numeric>
#include <QLineF>

using Embroidery::EmbPattern;
using Embroidery::isColorChange;

namespace {

bool isCommand(int data, Embroidery::StitchCommand command)
{
    return (data & 0xFF) == command;
}

// QRectF::united() passes over rectangles without extent.
void include(QRectF &bounds, const QPointF &point)
{
    bounds.setLeft(std::min(bounds.left(), point.x()));
    bounds.setRight(std::max(bounds.right(), point.x()));
    bounds.setTop(std::min(bounds.top(), point.y()));
    bounds.setBottom(std::max(bounds.bottom(), point.y()));
}

} // namespace

/** Walks once over the points of a pattern. */
class SewingOrder::Builder
{
public:
    Builder(EmbPattern &pattern, SewingOrder &order) : m_pattern(pattern), m_order(order) {}

    void build()
    {
        const int count = m_pattern.size();
        while (m_point < count) {
            passOver(count);
            if (m_point < count) {
                sew(count);
            }
        }
        if (!m_order.m_uses.isEmpty()) {
            m_order.m_uses.last().endPoint = count;
        }
    }

private:
    /** What lies between two rows of stitches. */
    void passOver(int count)
    {
        m_jumps.clear();
        for (; m_point < count && !isStitch(); ++m_point) {
            const int data = m_pattern.getData(m_point);
            if (isCommand(data, Embroidery::StitchCommandMove)) {
                addLine(m_jumps, StitchRun::Jump, m_order.m_uses.size() - 1);
            } else if (isColorChange(data)) {
                ++m_color;
                m_lastChange = m_point;
            }
        }
    }

    void sew(int count)
    {
        m_color = std::max(m_color, 0);
        if (!m_order.m_uses.isEmpty()) {
            m_order.m_runs += m_jumps;
        }
        if (m_order.m_uses.isEmpty() && m_position.isNull() &&
            !m_pattern.boundingRect().contains(m_position)) {
            m_position = m_order.pointAt(m_point);
        }
        if (m_order.m_uses.isEmpty() || m_color != m_colorOfUse) {
            beginUse();
        }
        ThreadUse &use = m_order.m_uses.last();
        QVector<StitchRun> sewn;
        for (; m_point < count && isStitch(); ++m_point) {
            use.length += QLineF(m_position, m_order.pointAt(m_point)).length();
            ++use.stitches;
            addLine(sewn, StitchRun::Sewn, m_order.m_uses.size() - 1);
        }
        m_order.m_runs += sewn;
    }

    void beginUse()
    {
        const bool first = m_order.m_uses.isEmpty();
        if (!first) {
            m_order.m_uses.last().endPoint = m_lastChange;
        }
        m_colorOfUse = m_color;
        m_order.m_uses.append(
            {m_pattern.threadForIndex(m_color), first ? 0 : m_lastChange, 0, 0, 0});
    }

    /** Leads on to the point that the walk has come to. */
    void addLine(QVector<StitchRun> &runs, StitchRun::Kind kind, int use)
    {
        const bool goesOn = !runs.isEmpty() && runs.last().endPoint == m_point &&
                            m_point - runs.last().firstPoint < LongestRun;
        if (!goesOn) {
            runs.append({kind, use, m_position, m_point, m_point, QRectF(m_position, QSizeF())});
        }
        m_position = m_order.pointAt(m_point);
        runs.last().endPoint = m_point + 1;
        include(runs.last().bounds, m_position);
    }

    bool isStitch() const
    {
        return isCommand(m_pattern.getData(m_point), Embroidery::StitchCommandStitch);
    }

    EmbPattern &m_pattern;
    SewingOrder &m_order;
    int m_point = 0;
    int m_color = -1;
    int m_colorOfUse = -1;
    int m_lastChange = 0;
    // The last stitch or move.
    QPointF m_position;
    QVector<StitchRun> m_jumps;
};

SewingOrder::SewingOrder(const QSharedPointer<EmbPattern> &pattern)
    : m_pattern(pattern), m_pointCount(pattern->size())
{
    Builder(*pattern, *this).build();
    if (!m_uses.isEmpty()) {
        m_bounds = pattern->boundingRect();
    }
}

QPointF SewingOrder::pointAt(int i) const
{
    return QPointF(double(m_pattern->getX(i)), double(m_pattern->getY(i)));
}

double SewingOrder::threadLength() const
{
    return std::accumulate(m_uses.begin(), m_uses.end(), 0.0,
                           [](double sum, const ThreadUse &use) { return sum + use.length; });
}

int SewingOrder::useAt(int point) const
{
    const auto endsBefore = [](const ThreadUse &use, int at) { return use.endPoint <= at; };
    const auto use = std::lower_bound(m_uses.begin(), m_uses.end(), point, endsBefore);
    return m_uses.isEmpty() ? -1
                            : int(std::min<qsizetype>(use - m_uses.begin(), m_uses.size() - 1));
}
