#include "widgets/controls/DragDropHelper.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

constexpr int DropDelayMs = 10;

} // namespace

DragDropHelper::DragDropHelper(QWidget *target, Accept accept)
    : QObject(target), m_target(target), m_accept(accept)
{
    target->setAcceptDrops(true);
}

void DragDropHelper::dragEnterEvent(QDragEnterEvent *event)
{
    acceptOrIgnore(event);
    setDragActive(event->isAccepted());
}

void DragDropHelper::dragMoveEvent(QDragMoveEvent *event)
{
    if (m_dragActive)
        event->setDropAction(Qt::CopyAction);
    event->setAccepted(m_dragActive);
}

void DragDropHelper::dragLeaveEvent(QDragLeaveEvent *)
{
    setDragActive(false);
}

void DragDropHelper::dropEvent(QDropEvent *event)
{
    setDragActive(false);
    acceptOrIgnore(event);
    if (!event->isAccepted())
        return;
    const QStringList paths = acceptedPaths(event->mimeData());
    QTimer::singleShot(DropDelayMs, this, [this, paths] { emit filesDropped(paths); });
}

QStringList DragDropHelper::acceptedPaths(const QMimeData *data) const
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (path.isEmpty())
            continue;
        const QFileInfo info(path);
        if (m_accept == Directories ? info.isDir() : info.isFile())
            paths += path;
    }
    return paths;
}

bool DragDropHelper::isBlockedByModalWindow() const
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && modal != m_target->window();
}

void DragDropHelper::acceptOrIgnore(QDropEvent *event)
{
    const bool wanted = !isBlockedByModalWindow() && !acceptedPaths(event->mimeData()).isEmpty();
    // The paths are only read: a move would let the file manager delete the folder.
    if (wanted)
        event->setDropAction(Qt::CopyAction);
    event->setAccepted(wanted);
}

void DragDropHelper::setDragActive(bool active)
{
    if (active == m_dragActive)
        return;
    m_dragActive = active;
    emit dragActiveChanged(active);
}
