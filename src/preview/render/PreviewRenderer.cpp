#include "preview/render/PreviewRenderer.h"

#include "preview/render/DesignPainter.h"
#include "preview/render/StitchLight.h"
#include "preview/render/StitchPainter.h"
#include <algorithm>
#include <cmath>
#include <QBrush>
#include <QPainter>
#include <QPen>
#include <utility>

using Embroidery::EmbPattern;
using Embroidery::StitchBlock;

namespace {

constexpr double PenWidth = 4.0;
/** Of a card's width; the rest is margin. */
constexpr double CardShare = 200.0 / 220.0;
constexpr float EndTilt = 0.3f;

// Also false for a NaN, which compares false with everything.
bool isDrawableSide(double pixels)
{
    return pixels >= 1.0 && pixels <= PreviewRenderer::LargestSide;
}

} // namespace

PreviewRenderer::PreviewRenderer()
    : m_lightColor(Qt::white), m_ambientColor(0xB3, 0xB3, 0xB3),
      m_lightDirection(QVector3D(-0.5f, -0.5f, 1.0f).normalized()), m_diffuseFactor(1.0f)
{
}

QPixmap PreviewRenderer::renderToPixmap(const QSharedPointer<EmbPattern> &pattern, double size)
{
    PreviewRenderer renderer;
    QImage image = renderer.render(pattern, size);
    return QPixmap::fromImage(std::move(image));
}

QImage PreviewRenderer::render(const QSharedPointer<EmbPattern> &pattern, double size,
                               const IAbortCheck &abort)
{
    if (pattern.isNull()) {
        return QImage();
    }
    const QList<StitchBlock> blocks = pattern->asStitchBlock();
    const QRectF rect = pattern->boundingRect();
    const double scale = size / std::max(rect.width(), rect.height());
    const double width = std::ceil(rect.width() * scale);
    const double height = std::ceil(rect.height() * scale);
    if (!isDrawableSide(width) || !isDrawableSide(height)) {
        return QImage();
    }
    const QSize pixels = QSizeF(width, height).toSize();
    const QPointF offset(-std::floor(rect.x() * scale), -std::floor(rect.y() * scale));
    return paint(blocks, pixels, scale, offset, abort);
}

QImage PreviewRenderer::renderCard(const QSharedPointer<EmbPattern> &pattern, int size,
                                   const IAbortCheck &abort)
{
    if (pattern.isNull() || !isDrawableSide(size)) {
        return QImage();
    }
    const QList<StitchBlock> blocks = pattern->asStitchBlock();
    const bool hasStitch = std::any_of(blocks.begin(), blocks.end(), [](const StitchBlock &block) {
        return block.points.size() > 1;
    });
    // The thread is wider than the line that the needle follows.
    constexpr double half = PenWidth / 2;
    const QRectF rect = pattern->boundingRect().adjusted(-half, -half, half, half);
    const double scale = size * CardShare / std::max(rect.width(), rect.height());
    if (!hasStitch || !std::isfinite(scale) || !(scale > 0)) {
        return QImage();
    }
    const QPointF middle(size / 2.0, size / 2.0);
    const QImage design =
        paint(blocks, QSize(size, size), scale, middle - rect.center() * scale, abort);
    if (design.isNull()) {
        return QImage();
    }
    QImage card(design.size(), QImage::Format_ARGB32);
    card.fill(Qt::white);
    QPainter(&card).drawImage(0, 0, design);
    return card;
}

QImage PreviewRenderer::paint(const QList<StitchBlock> &blocks, const QSize &pixels, double scale,
                              const QPointF &offset, const IAbortCheck &abort) const
{
    StitchPainter painter(pixels, scale, offset, PenWidth);
    const StitchLight lamp = light();
    const bool done =
        !painter.isNull() && DesignPainter(painter, lamp, abort)
                                 .paint(blocks, DesignPainter::Budget::forPicture(pixels));
    return done ? painter.take() : QImage();
}

void PreviewRenderer::drawThread(QPainter &painter, QPointF &from, const QPointF &to,
                                 const QColor &color)
{
    painter.setPen(QPen(QBrush(buildGradient(from, to, color)), PenWidth, Qt::SolidLine,
                        Qt::RoundCap, Qt::BevelJoin));
    // A line without length would leave nothing, where the needle leaves a dot.
    if (from == to) {
        painter.drawPoint(from);
        return;
    }
    const QLineF line(from, to);
    painter.drawLines(&line, 1);
}

QLinearGradient PreviewRenderer::buildGradient(const QPointF &from, const QPointF &to,
                                               const QColor &color)
{
    const QVector3D along = QVector3D(from - to).normalized();
    const QVector3D startNormal = QVector3D(along.x(), along.y(), EndTilt).normalized();
    const QVector3D endNormal = QVector3D(-along.x(), -along.y(), EndTilt).normalized();

    QLinearGradient gradient;
    gradient.setColorAt(0.0, shadeColor(color, startNormal));
    gradient.setColorAt(1.0, shadeColor(color, endNormal));
    gradient.setStart(from);
    gradient.setFinalStop(to);
    return gradient;
}

QColor PreviewRenderer::shadeColor(const QColor &color, const QVector3D &normal)
{
    const QVector4D own = rgbaVector(color.rgba());
    const QVector3D total = light().facing(normal);
    QVector4D shaded(own.toVector3D() * total, own.w());
    return QColor::fromRgba(rgbaColor(shaded));
}

StitchLight PreviewRenderer::light() const
{
    const QVector4D ambient = rgbaVector(m_ambientColor.rgba());
    const QVector4D diffuse = rgbaVector(m_lightColor.rgba());
    return StitchLight(ambient.toVector3D() * ambient.w(),
                       diffuse.toVector3D() * diffuse.w() * m_diffuseFactor,
                       m_lightDirection.normalized(), EndTilt);
}

QVector3D PreviewRenderer::rgbVector(unsigned int rgb)
{
    return QVector3D(qRed(rgb), qGreen(rgb), qBlue(rgb)) / 255.0f;
}

QVector4D PreviewRenderer::rgbaVector(unsigned int rgba)
{
    return QVector4D(qRed(rgba), qGreen(rgba), qBlue(rgba), qAlpha(rgba)) / 255.0f;
}

unsigned int PreviewRenderer::rgbaColor(QVector4D &v)
{
    const auto channel = [](float value) { return std::min(255, int(value * 255.0f)); };
    return qRgba(channel(v.x()), channel(v.y()), channel(v.z()), channel(v.w()));
}
