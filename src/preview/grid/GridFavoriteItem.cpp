#include "preview/grid/GridFavoriteItem.h"

#include "properties/core/PropertyValues.h"
#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>

namespace {

QPixmap starPixmap(const QString &path)
{
    QImageReader reader(path);
    const qreal ratio = qApp->devicePixelRatio();
    reader.setScaledSize(reader.size() * ratio);
    QPixmap pixmap = QPixmap::fromImageReader(&reader);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

const QPixmap &sharedPixmap(bool on)
{
    static const QPixmap onPixmap =
        starPixmap(QStringLiteral(":/icons/small_favorite_overlay_on.svg"));
    static const QPixmap offPixmap =
        starPixmap(QStringLiteral(":/icons/small_favorite_overlay_off.svg"));
    return on ? onPixmap : offPixmap;
}

} // namespace

GridFavoriteItem::GridFavoriteItem(const QSharedPointer<IFile> &file, QGraphicsItem *card)
    : QGraphicsPixmapItem(card), m_file(file), m_isFavorite(file->isFavorite())
{
    setFlag(ItemIgnoresTransformations);
    setTransformationMode(Qt::SmoothTransformation);
    // The whole star takes the press, not only its opaque pixels.
    setShapeMode(QGraphicsPixmapItem::BoundingRectShape);
    setAcceptedMouseButtons(Qt::LeftButton);
    m_file->isFavoriteProp()->registerObserver(this);
    update();
}

void GridFavoriteItem::setParentHovered(bool hovered)
{
    m_parentHovered = hovered;
    update();
}

void GridFavoriteItem::observedObjectChanged(const Observable *)
{
    m_isFavorite = m_file->isFavorite();
    update();
}

void GridFavoriteItem::update()
{
    setPixmap(sharedPixmap(m_isFavorite));
    setVisible(m_isFavorite || m_parentHovered);
}

void GridFavoriteItem::mousePressEvent(QGraphicsSceneMouseEvent *)
{
    m_file->setFavorite(!m_isFavorite);
}
