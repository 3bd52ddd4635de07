#include "widgets/style/FlatControls.h"

#include "widgets/style/WidgetHelper.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace {

constexpr int ShortestHandle = 28;
constexpr int HandleInset = 3;
constexpr int FieldFrame = 2; // pixels, that of the focus
constexpr qreal ProgressRadius = 4.0;
constexpr qreal CheckRadius = 3.0;
constexpr qreal OutlineShare = 0.5;
constexpr qreal RestingHandle = 0.45;
constexpr qreal TouchedHandle = 0.62;

void drawBaseLine(const QStyleOption *option, QPainter *painter)
{
    const QRect &rect = option->rect;
    painter->fillRect(rect, option->palette.window());
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), option->palette.mid());
}

QPainterPath progressOutline(const QStyleOption *option)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), ProgressRadius,
                        ProgressRadius);
    return path;
}

} // namespace

QRect FlatControls::scrollBarPart(const QStyleOptionSlider *option, QStyle::SubControl part)
{
    const bool horizontal = option->orientation == Qt::Horizontal;
    const int length = horizontal ? option->rect.width() : option->rect.height();
    const qint64 range = qint64(option->maximum) - option->minimum;
    int handle = length;
    if (range > 0)
        handle =
            qBound(qMin(ShortestHandle, length),
                   int(qint64(option->pageStep) * length / (range + option->pageStep)), length);
    const int start =
        QStyle::sliderPositionFromValue(option->minimum, option->maximum, option->sliderPosition,
                                        length - handle, option->upsideDown);
    int from = 0;
    int size = 0;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        size = length;
        break;
    case QStyle::SC_ScrollBarSlider:
        from = start;
        size = handle;
        break;
    case QStyle::SC_ScrollBarSubPage:
        size = start;
        break;
    case QStyle::SC_ScrollBarAddPage:
        from = start + handle;
        size = length - from;
        break;
    default:
        return QRect();
    }
    const QRect rect = horizontal ? QRect(from, 0, size, option->rect.height())
                                  : QRect(0, from, option->rect.width(), size);
    return QStyle::visualRect(option->direction, option->rect,
                              rect.translated(option->rect.topLeft()));
}

void FlatControls::drawScrollBar(const QStyleOptionSlider *option, QPainter *painter)
{
    const QPalette &palette = option->palette;
    painter->fillRect(option->rect, palette.window());
    if (option->maximum <= option->minimum)
        return;
    const bool touched = (option->activeSubControls & QStyle::SC_ScrollBarSlider) &&
                         (option->state & (QStyle::State_MouseOver | QStyle::State_Sunken));
    const QRect handle = scrollBarPart(option, QStyle::SC_ScrollBarSlider)
                             .adjusted(HandleInset, HandleInset, -HandleInset, -HandleInset);
    const qreal radius = qMin(handle.width(), handle.height()) / 2.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(WidgetHelper::mixed(palette.color(QPalette::WindowText),
                                          palette.color(QPalette::Window),
                                          touched ? TouchedHandle : RestingHandle));
    painter->drawRoundedRect(handle, radius, radius);
    painter->restore();
}

void FlatControls::drawProgressGroove(const QStyleOption *option, QPainter *painter)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option->palette.color(QPalette::Dark), 1.0));
    painter->setBrush(option->palette.base());
    painter->drawPath(progressOutline(option));
    painter->restore();
}

void FlatControls::clipToProgressGroove(const QStyleOption *option, QPainter *painter)
{
    painter->setClipPath(progressOutline(option), Qt::IntersectClip);
}

void FlatControls::drawProgressContents(const QStyleOptionProgressBar *option, QPainter *painter)
{
    const qreal range = qMax(1.0, qreal(option->maximum) - option->minimum);
    const qreal share = qBound(0.0, (qreal(option->progress) - option->minimum) / range, 1.0);
    const bool fromRight = (option->direction == Qt::RightToLeft) != option->invertedAppearance;
    QRectF done(option->rect);
    if (fromRight)
        done.setLeft(done.right() - done.width() * share);
    else
        done.setWidth(done.width() * share);
    QPainterPath bar;
    bar.addRect(done);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(progressOutline(option).intersected(bar), option->palette.highlight());
    painter->restore();
}

void FlatControls::drawCheckBox(const QStyleOption *option, QPainter *painter)
{
    const QPalette &palette = option->palette;
    const bool marked = option->state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor outline = WidgetHelper::mixed(palette.color(QPalette::WindowText),
                                               palette.color(QPalette::Window), OutlineShare);
    const QRectF box = QRectF(option->rect).adjusted(1.0, 1.0, -1.0, -1.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(marked ? palette.color(QPalette::Highlight) : outline, 1.0));
    painter->setBrush(palette.color(marked ? QPalette::Highlight : QPalette::Base));
    painter->drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), CheckRadius, CheckRadius);
    painter->setPen(QPen(palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap,
                         Qt::RoundJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (option->state & QStyle::State_On)
        painter->drawPolyline(QPolygonF({at(0.26, 0.52), at(0.44, 0.70), at(0.76, 0.32)}));
    else if (option->state & QStyle::State_NoChange)
        painter->drawLine(at(0.28, 0.5), at(0.72, 0.5));
    painter->restore();
}

void FlatControls::drawComboDivider(const QStyleOptionComboBox *option, const QRect &arrow,
                                    QPainter *painter)
{
    // The base style's own is lost on a dark field.
    const bool enabled = option->state & QStyle::State_Enabled;
    const int x = option->direction == Qt::LeftToRight ? arrow.left() : arrow.right();
    painter->fillRect(QRect(x, arrow.top() + FieldFrame, 1, arrow.height() - 2 * FieldFrame),
                      option->palette.color(enabled ? QPalette::Dark : QPalette::Mid));
}

void FlatControls::drawTab(const QStyleOptionTab *option, QPainter *painter, const QColor &accent)
{
    constexpr int Thickness = 2;
    const QRect &rect = option->rect;
    const QRect line(rect.left(), rect.bottom() - Thickness + 1, rect.width(), Thickness);
    if (option->state & QStyle::State_Selected)
        painter->fillRect(line, accent);
    else if (option->state & QStyle::State_MouseOver)
        painter->fillRect(line, option->palette.mid());
}

void FlatControls::drawTabPane(const QStyleOption *option, QPainter *painter)
{
    const QRect &rect = option->rect;
    painter->fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), option->palette.mid());
}

void FlatControls::drawHeaderSection(const QStyleOptionHeader *option, QPainter *painter)
{
    drawBaseLine(option, painter);
    if (option->orientation != Qt::Horizontal || option->position == QStyleOptionHeader::End ||
        option->position == QStyleOptionHeader::OnlyOneSection)
        return;
    constexpr int Gap = 4;
    const QRect &rect = option->rect;
    const int x = option->direction == Qt::LeftToRight ? rect.right() : rect.left();
    painter->fillRect(QRect(x, rect.top() + Gap, 1, rect.height() - 2 * Gap),
                      option->palette.mid());
}

void FlatControls::drawHeaderRest(const QStyleOption *option, QPainter *painter)
{
    drawBaseLine(option, painter);
}

void FlatControls::drawMenuPanel(const QStyleOption *option, QPainter *painter)
{
    painter->save();
    painter->setPen(option->palette.color(QPalette::Dark));
    painter->setBrush(option->palette.base());
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void FlatControls::drawMenuSeparator(const QStyleOptionMenuItem *option, QPainter *painter)
{
    constexpr int Inset = 6;
    const QRect &rect = option->rect;
    painter->fillRect(QRect(rect.left() + Inset, rect.center().y(), rect.width() - 2 * Inset, 1),
                      option->palette.mid());
}
