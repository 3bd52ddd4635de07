#include "preview/sheets/TrueSizePicture.h"

#include "catalogue/records/DesignTexts.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "embroidery/HoopSizes.h"
#include "preview/drawing/DesignDrawing.h"
#include "preview/drawing/HoopOutline.h"
#include "preview/drawing/StitchRaster.h"
#include "preview/sheets/PaperUnits.h"

#include <algorithm>
#include <QImage>
#include <QPainter>

namespace {

constexpr double UnitsPerMillimetre = 10.0;
constexpr double HoopLine = 3.0; // tenths of a millimetre
constexpr QRgb HoopColor = 0xFF808080;
// Lines take a few bytes each; of more than this an image is smaller.
constexpr int MostLines = 100000;
constexpr double DotsPerUnit = 200.0 / 254.0;

bool fits(const QSizeF &size, const QSizeF &area)
{
    return size.width() <= area.width() && size.height() <= area.height();
}

QRectF withThread(const QRectF &bounds)
{
    constexpr double half = StitchRaster::ThreadWidth / 2.0;
    return bounds.adjusted(-half, -half, half, half);
}

} // namespace

TrueSizePicture::TrueSizePicture(const QSharedPointer<const SewingOrder> &order, const QSizeF &area,
                                 bool imperial)
    : m_order(order), m_imperial(imperial),
      m_hoop(Embroidery::HoopSizes::smallestAround(order->bounds().size() / UnitsPerMillimetre,
                                                   imperial)),
      m_placement(place(area / PaperUnits::DesignUnit))
{
}

/** @param area in tenths of a millimetre */
TrueSizePicture::Placement TrueSizePicture::place(const QSizeF &area) const
{
    const QSizeF design = withThread(m_order->bounds()).size();
    if (m_hoop) {
        const QSizeF line(HoopLine, HoopLine);
        const QSizeF hoop = (*m_hoop * UnitsPerMillimetre + line).expandedTo(design);
        if (fits(hoop, area))
            return {1.0, false, true};
        if (fits(hoop.transposed(), area))
            return {1.0, true, true};
    }
    if (fits(design, area))
        return {1.0, false, false};
    if (fits(design.transposed(), area))
        return {1.0, true, false};
    const auto scale = [&area](const QSizeF &size) {
        return std::min(area.width() / size.width(), area.height() / size.height());
    };
    const double upright = scale(design);
    const double turned = scale(design.transposed());
    return {std::max(upright, turned), turned > upright, false};
}

QString TrueSizePicture::hoopText() const
{
    return LocaleAwareFunctions::toText(*m_hoop, m_imperial);
}

QString TrueSizePicture::caption() const
{
    if (m_placement.scale < 1.0)
        return tr("Reduced to %1%: the design is larger than the paper")
            .arg(DesignTexts::number(int(m_placement.scale * 100)));
    if (!m_hoop)
        return tr("True size; the design is larger than any hoop");
    if (!m_placement.hoop)
        return tr("True size, without its hoop of %1, which is larger than the paper")
            .arg(hoopText());
    return tr("True size in a hoop of %1").arg(hoopText());
}

void TrueSizePicture::paint(QPainter &painter, const QRectF &area) const
{
    painter.save();
    painter.translate(area.center());
    if (m_placement.turned)
        painter.rotate(90);
    const double scale = m_placement.scale * PaperUnits::DesignUnit;
    painter.scale(scale, scale);
    const QRectF bounds = m_order->bounds();
    painter.translate(-bounds.center());
    if (m_placement.hoop)
        HoopOutline::paint(painter, HoopOutline::around(bounds, *m_hoop), QColor(HoopColor),
                           HoopLine);
    paintDesign(painter);
    painter.restore();
}

void TrueSizePicture::paintDesign(QPainter &painter) const
{
    DrawingStyle style;
    style.darkensPale = true;
    const DesignDrawing drawing(m_order, style);
    if (m_order->pointCount() <= MostLines) {
        drawing.paint(painter, drawing.everything());
        return;
    }
    const QRectF area = withThread(m_order->bounds());
    const double dots = DotsPerUnit * m_placement.scale;
    QImage image((area.size() * dots).toSize().expandedTo(QSize(1, 1)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    drawing.paint(image, area.topLeft(), dots, drawing.everything());
    painter.drawImage(area, image);
}
