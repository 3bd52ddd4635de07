#pragma once

#include "catalogue/records/IFile.h"
#include "preview/grid/EditorScene.h"
#include "preview/grid/ThumbnailCache.h"
#include <QList>
#include <QSet>
#include <QSharedPointer>

class GridEmbroideryItem;

/** Holds the cards, places them and maps their selection to files. */
class GridPreviewScene : public EditorScene
{
    Q_OBJECT

public:
    explicit GridPreviewScene(QObject *parent = nullptr);
    ~GridPreviewScene() override;

    /** Shows these files in this order. Cards of files that stay are kept. */
    void setFiles(const QList<QSharedPointer<IFile>> &files);

    void areaExposed(const QRectF &area) override;

    /** What the cards draw their previews from. */
    ThumbnailCache &thumbnails() { return m_thumbnails; }

public slots:
    /** Places the cards in rows on a sheet of `width` scene units. */
    void placeSprites(int width);
    void setPreferredSceneWidth(int width);
    /** Lays the sheet out for a view that draws `newScale` pixels per scene unit. */
    void setScaleFactor(double newScale);
    /** Selects exactly the cards of these files. */
    void selectFiles(const QList<QSharedPointer<IFile>> &files);
    /** Tells the selected files, in the order of the grid. */
    void onSelectionChanged();
    /** Reads the preferences that the labels follow. */
    void refresh();

signals:
    void filesSelected(const QList<QSharedPointer<IFile>> &files);

private:
    void replaceCards(const QList<QSharedPointer<IFile>> &files);
    void deleteCards(const QList<GridEmbroideryItem *> &cards);

    QList<QSharedPointer<IFile>> m_files;
    // Parallel to m_files.
    QList<GridEmbroideryItem *> m_items;
    QSet<GridEmbroideryItem *> m_exposedItems;
    ThumbnailCache m_thumbnails;
    int m_preferredSceneWidth = 1024;
    double m_scaleFactor = 1.0;
    bool m_inSelectionChange = false;
};
