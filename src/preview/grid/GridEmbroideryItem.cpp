#include "preview/grid/GridEmbroideryItem.h"

#include "catalogue/records/LocaleAwareFunctions.h"
#include "preview/cache/PreviewCache.h"
#include "preview/grid/CardTexts.h"
#include "preview/grid/GridFavoriteItem.h"
#include "preview/grid/GridPreviewScene.h"
#include "preview/grid/PictureGround.h"
#include "preview/grid/UnreadDesign.h"
#include "properties/core/PropertyValues.h"
#include "widgets/controls/DesktopInteraction.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"
#include <QFont>
#include <QFontMetrics>
#include <QGraphicsSceneEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionGraphicsItem>

const GridEmbroideryItem::ItemLayout GridEmbroideryItem::NormalGrid = {200, 10, 2, 10};
const GridEmbroideryItem::ItemLayout GridEmbroideryItem::SmallGrid = {200, 10, 1, 5};

namespace {

const QPointF StarPosition(5, 5);
constexpr double LargestSmallGridScale = 0.5;
constexpr int FocusFrameWidth = 3;

int cardWidth(const GridEmbroideryItem::ItemLayout *layout)
{
    return layout->previewSize + 2 * layout->padding;
}

const GridEmbroideryItem::ItemLayout *layoutAt(double scale)
{
    return scale <= LargestSmallGridScale ? &GridEmbroideryItem::SmallGrid
                                          : &GridEmbroideryItem::NormalGrid;
}

// Asked for many cards at every step of the zoom, while the font hardly ever changes.
int lineSpacing()
{
    static QFont font;
    static int spacing = QFontMetrics(font).lineSpacing();
    const QFont current;
    if (!current.isCopyOf(font)) {
        font = current;
        spacing = QFontMetrics(font).lineSpacing();
    }
    return spacing;
}

} // namespace

GridEmbroideryItem::GridEmbroideryItem(const QSharedPointer<IFile> &file, GridPreviewScene *scene,
                                       bool imperial)
    : m_file(file), m_scene(scene), m_imperial(imperial),
      m_favorite(new GridFavoriteItem(file, this))
{
    static const QBrush whiteBrush(Qt::white);
    setAcceptHoverEvents(true);
    setBrush(whiteBrush);
    setPen(Qt::NoPen);
    m_favorite->setPos(StarPosition);
    m_file->absoluteFilePathProp()->registerObserver(this);
    m_file->designSizeProp()->registerObserver(this);
    refreshLabels(imperial);
    scene->addItem(this);
}

GridEmbroideryItem::~GridEmbroideryItem() = default;

void GridEmbroideryItem::refreshLabels(bool imperial)
{
    m_designSize = m_file->designSize();
    m_labelsImperial = imperial;
    layoutItem(m_layout, m_viewScaleFactor);
    update();
}

void GridEmbroideryItem::setViewScaleFactor(double s)
{
    m_viewScaleFactor = s;
    m_layout = layoutAt(s);
    layoutItem(m_layout, s);
}

QSizeF GridEmbroideryItem::sizeAt(double scale)
{
    const ItemLayout *layout = layoutAt(scale);
    const double labelHeight =
        lineSpacing() / scale * layout->lines + 2 * (layout->textMargin / scale);
    return {double(cardWidth(layout)), cardWidth(layout) + labelHeight};
}

void GridEmbroideryItem::layoutItem(const ItemLayout *layout, double s)
{
    m_maxLabelWidth = int(cardWidth(layout) * s) - 2 * layout->textMargin;
    clearLabels();
    setRect(QRectF(QPointF(), sizeAt(s)));
}

void GridEmbroideryItem::clearLabels()
{
    if (!toolTip().isEmpty()) {
        setToolTip(QString());
    }
    m_nameLabel.clear();
    m_sizeLabel.clear();
}

void GridEmbroideryItem::fillLabels()
{
    const QString name = CardTexts::name(*m_file);
    m_nameLabel = QFontMetrics(QFont()).elidedText(name, Qt::ElideRight, qMax(0, m_maxLabelWidth));
    if (m_nameLabel != name) {
        setToolTip(WidgetHelper::toolTipText(name));
    }
    if (m_layout->lines >= 2) {
        m_sizeLabel = LocaleAwareFunctions::toString(m_designSize, m_labelsImperial);
    }
}

void GridEmbroideryItem::observedObjectChanged(const Observable *)
{
    refreshLabels(m_imperial);
}

void GridEmbroideryItem::previewAvailable()
{
    update();
}

void GridEmbroideryItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                               QWidget *widget)
{
    if (m_nameLabel.isEmpty()) {
        fillLabels();
    }
    // The selection shows by the colour of the labels, not by a dashed outline.
    QStyleOptionGraphicsItem plainOption(*option);
    plainOption.state &= ~QStyle::State_Selected;
    QGraphicsRectItem::paint(painter, &plainOption, widget);
    paintPreview(painter);
    paintLabels(painter);
    if (m_scene->focusedCard() == this) {
        paintFocusFrame(painter);
    }
}

void GridEmbroideryItem::paintPreview(QPainter *painter)
{
    const QColor ground = PictureGround::of(*m_file);
    if (ground != brush().color()) {
        painter->fillRect(QRect(0, 0, cardWidth(m_layout), cardWidth(m_layout)), ground);
    }
    if (UnreadDesign::is(*m_file)) {
        const int side = m_layout->previewSize;
        UnreadDesign::paint(painter, QRect(m_layout->padding, m_layout->padding, side, side));
        return;
    }
    const QPixmap image = PreviewCache::instance().previewImage(m_file, this);
    if (image.isNull()) {
        return;
    }
    const int previewSize = m_layout->previewSize;
    const double f = double(previewSize) / qMax(image.width(), image.height());
    const int width = int(image.width() * f);
    const int height = int(image.height() * f);
    const int left = m_layout->padding + (previewSize - width) / 2;
    const int top = m_layout->padding + (previewSize - height) / 2;
    const QTransform toScreen = painter->worldTransform();
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize size(qRound(width * toScreen.m11() * ratio),
                     qRound(height * toScreen.m22() * ratio));
    if (size.width() >= image.width() || size.isEmpty()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(QRect(left, top, width, height), image);
        return;
    }
    // On whole pixels, so that the thumbnail stays as sharp as it is.
    const QPoint corner = toScreen.map(QPointF(left, top)).toPoint();
    painter->setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()));
    painter->drawPixmap(QPoint(0, 0), m_scene->thumbnails().thumbnail(image, size, ratio));
    painter->setWorldTransform(toScreen);
}

void GridEmbroideryItem::paintLabels(QPainter *painter)
{
    const int width = cardWidth(m_layout);
    const QRectF box(0, width, width, rect().height() - width);
    painter->fillRect(box, WidgetStyles::CardLabel(m_scene->isSelected(m_index)));

    // The text keeps its size at any zoom.
    const QPoint corner = painter->worldTransform().map(box.topLeft()).toPoint();
    const QFontMetrics metrics{QFont()};
    const QPoint name = QPoint(m_layout->textMargin, m_layout->textMargin + metrics.ascent());
    painter->save();
    painter->setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()));
    painter->setFont(QFont());
    painter->setPen(WidgetStyles::CardText());
    painter->drawText(name, m_nameLabel);
    painter->drawText(name + QPoint(0, metrics.lineSpacing()), m_sizeLabel);
    painter->restore();
}

void GridEmbroideryItem::paintFocusFrame(QPainter *painter)
{
    // Inside of the card, as wide at any zoom and on whole pixels.
    const QRect card = painter->worldTransform().mapRect(rect()).toRect();
    const QRegion frame = QRegion(card) - card.adjusted(FocusFrameWidth, FocusFrameWidth,
                                                        -FocusFrameWidth, -FocusFrameWidth);
    painter->save();
    painter->resetTransform();
    for (const QRect &side : frame) {
        painter->fillRect(side, WidgetStyles::CardFocus());
    }
    painter->restore();
}

void GridEmbroideryItem::hoverEnterEvent(QGraphicsSceneHoverEvent *)
{
    m_favorite->setParentHovered(true);
}

void GridEmbroideryItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *)
{
    m_favorite->setParentHovered(false);
}

void GridEmbroideryItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // What is selected can be dragged: only the release tells that it was a click.
    const bool several = event->modifiers() & Qt::ControlModifier;
    if (!several && !m_scene->isSelected(m_index)) {
        m_scene->selectOnly(m_index);
    }
}

void GridEmbroideryItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->scenePos() != event->buttonDownScenePos(Qt::LeftButton)) {
        return;
    }
    if (event->modifiers() & Qt::ControlModifier) {
        m_scene->setSelected(m_index, !m_scene->isSelected(m_index));
    } else {
        m_scene->selectOnly(m_index);
    }
}

void GridEmbroideryItem::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    // The card may be gone when the user has chosen.
    const QSharedPointer<IFile> file = m_file;
    const QPointer<GridPreviewScene> scene = m_scene;
    const QString path = file->absoluteFilePath();
    QMenu menu;
    QObject::connect(menu.addAction(tr("Open")), &QAction::triggered, [file, scene]() {
        if (scene != nullptr) {
            scene->requestOpen(file);
        }
    });
    QObject::connect(menu.addAction(DesktopInteraction::revealActionTextString()),
                     &QAction::triggered, [path]() { DesktopInteraction::revealInFinder(path); });
    menu.exec(event->screenPos());
}
