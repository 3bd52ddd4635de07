#pragma once

#include <QObject>
#include <QStringList>

class QDragEnterEvent;
class QDragLeaveEvent;
class QDragMoveEvent;
class QDropEvent;
class QMimeData;
class QWidget;

/**
 * Takes files or folders from a drag on behalf of a widget, which hands its drag events over.
 *
 * Only local paths count. While a modal window other than the widget's own is open, drags are
 * ignored.
 */
class DragDropHelper : public QObject
{
    Q_OBJECT

public:
    enum Accept { Files, Directories };

    /** Lets \a target accept drops; the target owns the helper. */
    DragDropHelper(QWidget *target, Accept accept);

    void dragEnterEvent(QDragEnterEvent *event);
    void dragMoveEvent(QDragMoveEvent *event);
    void dragLeaveEvent(QDragLeaveEvent *event);
    void dropEvent(QDropEvent *event);

    /** Whether something that may be dropped hangs over the target. */
    bool isDragActive() const { return m_dragActive; }

signals:
    /** Sent shortly after the drop, so that whoever dragged is free again. */
    void filesDropped(const QStringList &paths);
    void dragActiveChanged(bool active);

private:
    QStringList acceptedPaths(const QMimeData *data) const;
    bool isBlockedByModalWindow() const;
    void acceptOrIgnore(QDropEvent *event);
    void setDragActive(bool active);

    QWidget *m_target;
    Accept m_accept;
    bool m_dragActive = false;
};
