#pragma once

#include "catalogue/records/IFile.h"
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <QSharedPointer>

class QMouseEvent;
class QWidget;

/** The way of designs out of the grid, as files that another program copies. */
class DesignDrag
{
public:
    /** The left button went down on a card. */
    void begin(const QPoint &pos);
    void forget() { m_pressed = false; }

    /** Whether the pointer has gone far enough from there, with the button still down. */
    bool isDue(const QMouseEvent *event) const;

    /**
     * Lets the user drop @p files on any window but those of this program; returns when that is
     * over. @p picture is what he drags.
     */
    static void run(QWidget *source, const QList<QSharedPointer<IFile>> &files,
                    const QPixmap &picture);

    /** A small card with @p preview for a screen with @p ratio device pixels per pixel. */
    static QPixmap picture(const QPixmap &preview, int count, qreal ratio);

private:
    bool m_pressed = false;
    QPoint m_start;
};

/**
 * Keeps drops out of the windows of this program as long as it is there. Designs of the grid are
 * in the catalogue already, and a text field would take their paths for words of the user.
 */
class DropRefusal : public QObject
{
    Q_OBJECT

public:
    DropRefusal();

    bool eventFilter(QObject *receiver, QEvent *event) override;
};
