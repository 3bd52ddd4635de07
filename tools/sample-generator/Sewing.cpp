#include "Sewing.h"

#include "Curve.h"
#include "FillRows.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr double SatinSpacing = 4.4;
constexpr double UnderlayLength = 28;
/** A satin stitch longer than this would catch on things; it is split. */
constexpr double LongestSatin = 76;
constexpr double SplitLength = 46;
/** The thread is carried along without a cut up to this distance. */
constexpr double LongestCarry = 16;
constexpr double CornerAngle = 38;

QPointF rounded(const QPointF &point)
{
    return QPointF(std::round(point.x()), std::round(point.y()));
}

double distance(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length();
}

Curve middle(const Curve &left, const Curve &right)
{
    Curve result;
    for (int i = 0; i < left.size(); ++i)
        result << (left[i] + right[i]) / 2;
    return result;
}

/** Both rails of an even column along a curve without corners. */
void offsetRails(const Curve &curve, double width, Curve &left, Curve &right)
{
    const Curve points = Curves::resampledByStep(curve, SatinSpacing);
    const int last = points.size() - 1;
    const bool loop = points.first() == points.last();
    for (int i = 0; i <= last; ++i) {
        const QPointF before = i > 0 ? points[i - 1] : loop ? points[last - 1] : points[0];
        const QPointF after = i < last ? points[i + 1] : loop ? points[1] : points[last];
        const QPointF along = after - before;
        const double scale = width / 2 / std::max(1e-6, std::hypot(along.x(), along.y()));
        const QPointF normal(-along.y() * scale, along.x() * scale);
        left << points[i] + normal;
        right << points[i] - normal;
    }
}

/** The curve made longer at both ends, so that two columns overlap where they meet. */
Curve lengthened(Curve curve, double by)
{
    QLineF start(curve[1], curve[0]);
    start.setLength(start.length() + by);
    QLineF end(curve[curve.size() - 2], curve.last());
    end.setLength(end.length() + by);
    curve.prepend(start.p2());
    curve.append(end.p2());
    return curve;
}

} // namespace

Sewing::Sewing() : m_pattern(EmbPattern::create()) {}

void Sewing::thread(unsigned int rgb, const QString &name, const QString &number)
{
    if (!m_pattern->threadList().isEmpty()) {
        m_pattern->trim();
        m_pattern->color_change();
    }
    m_pattern->addThread(QSharedPointer<EmbThread>::create(
        rgb, name, number, QStringLiteral("Hoopline"), QStringLiteral("Samples")));
    m_mustMove = true;
}

void Sewing::fill(const QVector<Curve> &outlines, double degrees)
{
    for (const Curve &section : FillRows::sections(outlines, degrees)) {
        goTo(section.first());
        for (const QPointF &point : section)
            sew(point);
    }
}

void Sewing::run(const Curve &curve, double stitchLength)
{
    const Curve points = Curves::resampledByStep(curve, stitchLength);
    goTo(points.first());
    for (const QPointF &point : points)
        sew(point);
}

void Sewing::satin(const Curve &left, const Curve &right)
{
    const double longer = std::max(Curves::length(left), Curves::length(right));
    const int count = std::max(2, int(std::lround(longer / SatinSpacing)));
    const Curve a = Curves::resampled(left, count);
    const Curve b = Curves::resampled(right, count);

    Curve underlay = middle(a, b);
    std::reverse(underlay.begin(), underlay.end());
    run(underlay, UnderlayLength);
    for (int i = 0; i <= count; ++i) {
        sewAcross(m_position, a[i], 2 * i);
        sewAcross(a[i], b[i], 2 * i + 1);
    }
}

void Sewing::stroke(const Curve &curve, double width)
{
    const QVector<Curve> pieces = Curves::cutAtCorners(curve, CornerAngle);
    for (const Curve &piece : pieces) {
        Curve left;
        Curve right;
        offsetRails(pieces.size() > 1 ? lengthened(piece, width * 0.3) : piece, width, left, right);
        satin(left, right);
    }
}

void Sewing::petal(const QPointF &foot, double degrees, double length, double width)
{
    Curve left;
    Curve right;
    const int count = 24;
    for (int i = 0; i <= count; ++i) {
        const double t = double(i) / count;
        const double half = width / 2 * std::sin(Pi * std::pow(0.04 + 0.93 * t, 1.25));
        const QPointF spine = Curves::polar(foot, degrees, length * t);
        left << Curves::polar(spine, degrees + 90, half);
        right << Curves::polar(spine, degrees - 90, half);
    }
    satin(left, right);
}

void Sewing::leaf(const QPointF &foot, double degrees, double length, double width)
{
    for (const double side : {90.0, -90.0}) {
        Curve edge;
        const int count = 24;
        for (int i = 0; i <= count; ++i) {
            const double t = double(i) / count;
            const double half = width / 2 * std::sin(Pi * std::pow(t, 0.8));
            edge << Curves::polar(Curves::polar(foot, degrees, length * t), degrees + side, half);
        }
        satin(Curve{foot, Curves::polar(foot, degrees, length * 0.86)}, edge);
    }
}

void Sewing::dot(const QPointF &center, double radius)
{
    satin(Curves::arc(center, radius, radius, 180, 360),
          Curves::arc(center, radius, radius, 180, 0));
}

QSharedPointer<EmbPattern> Sewing::finish(const QString &name, const QString &category)
{
    m_pattern->trim();
    m_pattern->end();
    m_pattern->setName(name);
    m_pattern->setCategory(category);
    m_pattern->setAuthor(QStringLiteral("Hoopline"));
    return m_pattern;
}

void Sewing::goTo(const QPointF &point)
{
    const QPointF target = rounded(point);
    const double way = distance(m_position, target);
    if (!m_mustMove && way <= LongestCarry) {
        sew(target);
        return;
    }
    if (!m_mustMove)
        m_pattern->trim();
    m_pattern->moveAbs(float(target.x()), float(target.y()));
    m_position = target;
    m_mustMove = false;
    m_pattern->stitchAbs(float(target.x()), float(target.y()));
}

void Sewing::sew(const QPointF &point)
{
    const QPointF target = rounded(point);
    if (target == m_position)
        return;
    m_pattern->stitchAbs(float(target.x()), float(target.y()));
    m_position = target;
}

void Sewing::sewAcross(const QPointF &from, const QPointF &to, int row)
{
    const double way = distance(from, to);
    if (way > LongestSatin) {
        const QLineF line(from, to);
        for (double at = SplitLength * (0.4 + 0.2 * (row % 4)); at < way - 10; at += SplitLength)
            sew(line.pointAt(at / way));
    }
    sew(to);
}
