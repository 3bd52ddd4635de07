#include "widgets/controls/ElisionToolTip.h"

#include "widgets/style/WidgetHelper.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QIcon>
#include <QToolTip>

namespace {

/** How wide a delegate draws an item: an icon, if there is one, and the text, with margins. */
int neededWidth(const QAbstractItemView *view, const QModelIndex &index)
{
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
    const QString text = index.data(Qt::DisplayRole).toString();
    int width = view->fontMetrics().horizontalAdvance(text) + 2 * margin;
    if (!index.data(Qt::DecorationRole).isNull()) {
        const int icon = view->iconSize().isValid()
                             ? view->iconSize().width()
                             : view->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, view);
        width += icon + 2 * margin;
    }
    return width;
}

} // namespace

ElisionToolTip::ElisionToolTip(QAbstractItemView *view) : QObject(view), m_view(view)
{
    view->viewport()->installEventFilter(this);
}

bool ElisionToolTip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = m_view->indexAt(help->pos());
    const QRect shown = m_view->visualRect(index).intersected(m_view->viewport()->rect());
    QString text;
    if (index.isValid() && neededWidth(m_view, index) > shown.width())
        text = WidgetHelper::toolTipText(index.data(Qt::DisplayRole).toString());
    // An empty text hides the tool tip of another item.
    QToolTip::showText(help->globalPos(), text, m_view->viewport(), shown);
    return true;
}
