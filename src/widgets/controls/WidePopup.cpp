#include "widgets/controls/WidePopup.h"

#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace {

constexpr int MostWidth = 400; // pixels

} // namespace

int WidePopup::wantedWidth(const QListView *list)
{
    const int scrollBar = list->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, list);
    const int frame = list->window()->width() - list->viewport()->width();
    return qMin(list->sizeHintForColumn(0) + qMax(frame, scrollBar), MostWidth);
}

void WidePopup::widen(QListView *list)
{
    QWidget *window = list->window();
    QRect geometry = window->geometry();
    geometry.setWidth(qMax(geometry.width(), wantedWidth(list)));
    const int end = window->screen()->availableGeometry().right();
    if (geometry.right() > end)
        geometry.moveRight(end);
    if (geometry != window->geometry())
        window->setGeometry(geometry);
}
