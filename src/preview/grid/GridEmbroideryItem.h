#pragma once

#include "catalogue/records/IFile.h"
#include "preview/cache/PreviewCacheListener.h"
#include "properties/changes/Observer.h"
#include <QCoreApplication>
#include <QGraphicsRectItem>
#include <QPixmap>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>

class GridFavoriteItem;
class GridPreviewScene;

/**
 * One card of the grid: the preview of a file, below it the file's name and the size of
 * the design, in a corner the star. It paints its labels itself, and is there only while
 * the view shows it.
 */
class GridEmbroideryItem : public QGraphicsRectItem, public Observer, public PreviewCacheListener
{
    Q_DECLARE_TR_FUNCTIONS(GridEmbroideryItem)

public:
    /** The previews in scene units, the labels in screen pixels. */
    struct ItemLayout
    {
        int previewSize;
        int padding;
        int lines;
        int textMargin;
    };
    static const ItemLayout NormalGrid;
    static const ItemLayout SmallGrid;

    /** Adds itself to @p scene, which owns it. @p imperial: sizes in inches. */
    GridEmbroideryItem(const QSharedPointer<IFile> &file, GridPreviewScene *scene, bool imperial);
    ~GridEmbroideryItem() override;

    const QSharedPointer<IFile> &file() const { return m_file; }

    /** Which one of the sheet it is. */
    void setIndex(int index) { m_index = index; }

    /** The size of every card, in scene units, where so many pixels are one. */
    static QSizeF sizeAt(double scale);

    /** Reads name and size of the file anew. */
    void refreshLabels(bool imperial);

    /** Follows the view, which now draws @p s pixels per scene unit. */
    void setViewScaleFactor(double s);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
               QWidget *widget = nullptr) override;

    void previewAvailable() override;
    void observedObjectChanged(const Observable *observable) override;

protected:
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    void layoutItem(const ItemLayout *layout, double s);
    void fillLabels();
    void clearLabels();
    void paintPreview(QPainter *painter);
    void paintLabels(QPainter *painter);
    void paintFocusFrame(QPainter *painter);

    QSharedPointer<IFile> m_file;
    GridPreviewScene *m_scene;
    // What the label tells, as of the last refresh.
    QSizeF m_designSize;
    bool m_labelsImperial = false;
    // As given at construction; a change of the file falls back to it.
    bool m_imperial;
    int m_index = -1;
    QString m_nameLabel;
    QString m_sizeLabel;
    int m_maxLabelWidth = 0;
    double m_viewScaleFactor = 1.0;
    const ItemLayout *m_layout = &NormalGrid;
    GridFavoriteItem *m_favorite; ///< a child item
};
