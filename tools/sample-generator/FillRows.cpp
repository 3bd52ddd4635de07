#include "FillRows.h"

#include "Curve.h"

#include <QLineF>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace FillRows {

namespace {

constexpr double RowSpacing = 3.6;
constexpr double StitchLength = 34;
/** Needle points nearer to the edge than this would only make a lump. */
constexpr double EdgeMargin = 9;
constexpr double ShortestSegment = 3;
constexpr int OffsetRows = 4;

struct Segment
{
    int row;
    double from;
    double to;
};

using Section = QVector<Segment>;

bool overlap(const Segment &a, const Segment &b)
{
    return a.from < b.to && b.from < a.to;
}

QVector<Segment> segmentsOfRow(const QVector<Curve> &outlines, int row)
{
    const double y = (row + 0.5) * RowSpacing;
    QVector<double> crossings;
    for (const Curve &outline : outlines) {
        for (int i = 1; i < outline.size(); ++i) {
            const QPointF a = outline[i - 1];
            const QPointF b = outline[i];
            if ((a.y() <= y) != (b.y() <= y))
                crossings << a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y());
        }
    }
    std::sort(crossings.begin(), crossings.end());
    QVector<Segment> segments;
    for (int i = 0; i + 1 < crossings.size(); i += 2) {
        if (crossings[i + 1] - crossings[i] >= ShortestSegment)
            segments << Segment{row, crossings[i], crossings[i + 1]};
    }
    return segments;
}

/** Joins segments to sections: where rows split or meet, a new section begins. */
QVector<Section> joined(const QVector<Curve> &outlines, int firstRow, int lastRow)
{
    QVector<Section> done;
    QVector<Section> open;
    for (int row = firstRow; row <= lastRow; ++row) {
        const QVector<Segment> segments = segmentsOfRow(outlines, row);
        const auto touches = [](const Section &section, const Segment &segment) {
            return overlap(section.last(), segment);
        };
        QVector<Section> next;
        QVector<bool> goesOn(open.size(), false);
        for (const Segment &segment : segments) {
            int match = -1;
            int above = 0;
            for (int i = 0; i < open.size(); ++i) {
                if (touches(open[i], segment)) {
                    ++above;
                    match = i;
                }
            }
            const auto below = [&](int i) {
                return std::count_if(segments.begin(), segments.end(),
                                     [&](const Segment &other) { return touches(open[i], other); });
            };
            if (above == 1 && below(match) == 1) {
                goesOn[match] = true;
                next << open[match] + Section{segment};
            } else {
                next << Section{segment};
            }
        }
        for (int i = 0; i < open.size(); ++i) {
            if (!goesOn[i])
                done << open[i];
        }
        open = next;
    }
    return done + open;
}

void sewRow(const Segment &segment, bool forward, Curve &points)
{
    const double y = (segment.row + 0.5) * RowSpacing;
    const int offsetRow = ((segment.row * 3) % OffsetRows + OffsetRows) % OffsetRows;
    const double offset = StitchLength * offsetRow / OffsetRows;
    Curve row{QPointF(segment.from, y)};
    double x =
        std::ceil((segment.from + EdgeMargin - offset) / StitchLength) * StitchLength + offset;
    for (; x < segment.to - EdgeMargin; x += StitchLength)
        row << QPointF(x, y);
    row << QPointF(segment.to, y);
    if (!forward)
        std::reverse(row.begin(), row.end());
    points += row;
}

Curve sewn(const Section &section, const QPointF &from)
{
    const QPointF top(section.first().from, (section.first().row + 0.5) * RowSpacing);
    const QPointF bottom(section.last().from, (section.last().row + 0.5) * RowSpacing);
    const bool upwards = QLineF(from, bottom).length() < QLineF(from, top).length();
    Curve points;
    bool forward = true;
    for (int i = 0; i < section.size(); ++i) {
        sewRow(section[upwards ? section.size() - 1 - i : i], forward, points);
        forward = !forward;
    }
    return points;
}

} // namespace

QVector<Curve> sections(const QVector<Curve> &outlines, double degrees)
{
    QVector<Curve> turned;
    QRectF bounds;
    for (const Curve &outline : outlines) {
        turned << Curves::turned(outline, -degrees);
        bounds |= QPolygonF(turned.last()).boundingRect();
    }
    const int firstRow = int(std::floor(bounds.top() / RowSpacing));
    const int lastRow = int(std::ceil(bounds.bottom() / RowSpacing));

    QVector<Curve> result;
    QPointF position = bounds.topLeft();
    for (const Section &section : joined(turned, firstRow, lastRow)) {
        const Curve points = sewn(section, position);
        position = points.last();
        result << Curves::turned(points, degrees);
    }
    return result;
}

} // namespace FillRows
