#pragma once

#include "catalogue/records/IFile.h"
#include "properties/changes/Observer.h"
#include <QGraphicsPixmapItem>
#include <QSharedPointer>

/**
 * The star on a card. Shown while the file is a favourite or the pointer is on
 * the card; pressing it turns the favourite flag over.
 */
class GridFavoriteItem : public QGraphicsPixmapItem, public Observer
{
public:
    /** The star belongs to @p card, its parent item. */
    GridFavoriteItem(const QSharedPointer<IFile> &file, QGraphicsItem *card);

    void setParentHovered(bool hovered);

    void observedObjectChanged(const Observable *observable) override;

protected:
    /** Two quick clicks are one for the flag; nobody wants it twice. */
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *) override {}
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void update();

    QSharedPointer<IFile> m_file;
    bool m_isFavorite = false;
    bool m_parentHovered = false;
};
