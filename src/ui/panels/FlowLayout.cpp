#include "ui/panels/FlowLayout.h"

#include <QApplication>
#include <QWidget>

FlowLayout::FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), m_horizontalSpace(hSpacing), m_verticalSpace(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::FlowLayout(int margin, int hSpacing, int vSpacing)
    : FlowLayout(nullptr, margin, hSpacing, vSpacing)
{
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return m_items.count();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    const bool known = index >= 0 && index < m_items.count();
    return known ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::horizontalSpacing() const
{
    return m_horizontalSpace >= 0 ? m_horizontalSpace
                                  : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int FlowLayout::verticalSpacing() const
{
    return m_verticalSpace >= 0 ? m_verticalSpace : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return doLayout(QRect(0, 0, width, 0), true);
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    doLayout(rect, false);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

int FlowLayout::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = contentsMargins();
    const int left = rect.x() + margins.left();
    const int available = rect.width() - margins.left() - margins.right();
    const int right = left + available;
    const int spaceX = spacingOrStyle(horizontalSpacing(), Qt::Horizontal);
    const int spaceY = spacingOrStyle(verticalSpacing(), Qt::Vertical);
    int x = left;
    int y = rect.y() + margins.top();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        const QSize hint = item->sizeHint();
        if (lineHeight > 0 && x + hint.width() > right) {
            y += lineHeight + spaceY;
            x = left;
            lineHeight = 0;
        }
        const QSize size(qMin(hint.width(), available), hint.height());
        if (!testOnly)
            item->setGeometry(QRect(QPoint(x, y), size));
        lineHeight = qMax(lineHeight, size.height());
        x += size.width() + spaceX;
    }
    return y + lineHeight - rect.y() + margins.bottom();
}

int FlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    if (!parent())
        return -1;
    if (const auto *widget = qobject_cast<QWidget *>(parent()))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    return static_cast<QLayout *>(parent())->spacing();
}

int FlowLayout::spacingOrStyle(int spacing, Qt::Orientation orientation) const
{
    if (spacing >= 0)
        return spacing;
    const QStyle *style = parentWidget() ? parentWidget()->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}
