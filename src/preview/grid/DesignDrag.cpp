#include "preview/grid/DesignDrag.h"

#include "widgets/style/WidgetStyles.h"
#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>
#include <QWidget>

namespace {

// In pixels.
constexpr int CardSize = 96;
constexpr int Padding = 6;
constexpr int BadgeHeight = 22;

void paintPreview(QPainter &painter, const QPixmap &preview, qreal ratio)
{
    if (preview.isNull()) {
        return;
    }
    const int room = int((CardSize - 2 * Padding) * ratio);
    QPixmap image = preview.scaled(room, room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    const QSizeF size = QSizeF(image.size()) / ratio;
    painter.drawPixmap(QPointF((CardSize - size.width()) / 2, (CardSize - size.height()) / 2),
                       image);
}

void paintBadge(QPainter &painter, int count)
{
    const QString text = QString::number(count);
    QFont font;
    font.setBold(true);
    const int textWidth = QFontMetrics(font).horizontalAdvance(text);
    const int width = qMax(BadgeHeight, textWidth + BadgeHeight / 2);
    const QRect badge(CardSize - width, 0, width, BadgeHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(WidgetStyles::Primary700);
    painter.drawRoundedRect(badge, BadgeHeight / 2.0, BadgeHeight / 2.0);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, text);
}

} // namespace

void DesignDrag::begin(const QPoint &pos)
{
    m_pressed = true;
    m_start = pos;
}

bool DesignDrag::isDue(const QMouseEvent *event) const
{
    return m_pressed && (event->buttons() & Qt::LeftButton) &&
           (event->pos() - m_start).manhattanLength() >= QApplication::startDragDistance();
}

void DesignDrag::run(QWidget *source, const QList<QSharedPointer<IFile>> &files,
                     const QPixmap &picture)
{
    QList<QUrl> urls;
    urls.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files) {
        urls.append(QUrl::fromLocalFile(file->absoluteFilePath()));
    }
    // Qt deletes it when the drag is over.
    auto *drag = new QDrag(source);
    auto *data = new QMimeData;
    data->setUrls(urls);
    drag->setMimeData(data);
    drag->setPixmap(picture);
    drag->setHotSpot(QPoint(CardSize / 2, CardSize / 2));
    const DropRefusal refusal;
    // A move would take the design out of its folder.
    drag->exec(Qt::CopyAction);
}

QPixmap DesignDrag::picture(const QPixmap &preview, int count, qreal ratio)
{
    QPixmap card(QSize(CardSize, CardSize) * ratio);
    card.setDevicePixelRatio(ratio);
    card.fill(Qt::transparent);
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(WidgetStyles::Primary200);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(0.5, 0.5, CardSize - 1, CardSize - 1), Padding, Padding);
    paintPreview(painter, preview, ratio);
    if (count > 1) {
        paintBadge(painter, count);
    }
    return card;
}

DropRefusal::DropRefusal()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool DropRefusal::eventFilter(QObject *receiver, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        static_cast<QDropEvent *>(event)->ignore();
        return true;
    default:
        return QObject::eventFilter(receiver, event);
    }
}
