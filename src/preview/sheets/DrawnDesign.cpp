#include "preview/sheets/DrawnDesign.h"

#include "preview/drawing/DesignDrawing.h"
#include "preview/drawing/ReadDesign.h"
#include "preview/drawing/StitchRaster.h"

#include <algorithm>

namespace {

constexpr qint64 BytesOfPoint = 24; // with its share of the runs
constexpr double UnitsPerMillimetre = 10.0;

QImage pictureOf(const QSharedPointer<const SewingOrder> &order, int side)
{
    // The thread of the outermost stitches is there in its whole width.
    constexpr double half = StitchRaster::ThreadWidth / 2.0;
    const QRectF area = order->bounds().adjusted(-half, -half, half, half);
    const double scale = side / std::max(area.width(), area.height());
    const QSize pixels = (area.size() * scale).toSize().expandedTo(QSize(1, 1));
    QImage picture(pixels, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::white);
    const DesignDrawing drawing(order);
    drawing.paint(picture, area.topLeft(), scale, drawing.everything());
    return picture;
}

/** As the catalogue shows a design whose file is on a drive that is not there. */
QImage previewOf(const SheetDesign &design, int side)
{
    if (design.previewPath.isEmpty())
        return {};
    QImage preview(design.previewPath);
    if (std::max(preview.width(), preview.height()) > side)
        preview = preview.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return preview;
}

} // namespace

qint64 DrawnDesign::memoryNeed() const
{
    return qint64(sizeof *this) + picture.sizeInBytes() +
           (order ? order->pointCount() * BytesOfPoint : 0);
}

DrawnDesign DrawnDesign::of(const SheetDesign &design, const DrawingWish &wish)
{
    const ReadDesign read = ReadDesign::fromFile(design.path);
    DrawnDesign drawn;
    drawn.error = read.error;
    if (!read.order) {
        drawn.picture = previewOf(design, wish.side);
        drawn.size = design.size;
        drawn.stitches = design.stitches;
        drawn.colors = design.colors;
        return drawn;
    }
    drawn.picture = pictureOf(read.order, wish.side);
    drawn.size = read.order->bounds().size() / UnitsPerMillimetre;
    drawn.stitches = read.order->pointCount();
    drawn.colors = read.order->threadUses().size();
    if (wish.stitches)
        drawn.order = read.order;
    return drawn;
}
