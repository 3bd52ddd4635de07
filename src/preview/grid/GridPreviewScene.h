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

    /** What moving to a card does to the selection. */
    enum Selecting { SelectNothing, SelectCard, SelectRange, AddRange };

    /** Shows these files in this order. Cards of files that stay are kept. */
    void setFiles(const QList<QSharedPointer<IFile>> &files);

    void areaExposed(const QRectF &area) override;

    int count() const { return m_items.size(); }
    /** The card at `index`, which must be one of count(). */
    GridEmbroideryItem *cardAt(int index) const { return m_items.at(index); }
    /** Where the card of this file is; -1 where it has none. */
    int indexOf(const QSharedPointer<IFile> &file) const { return m_files.indexOf(file); }
    /** How many cards a full row has, at least 1. */
    int columns() const { return m_columns; }
    /** How far the tops of two rows are apart, in scene units; 0 without cards. */
    double rowHeight() const { return m_rowHeight; }
    /** The first card that reaches below `y`; count() where there is none. */
    int firstIndexBelow(double y) const;
    /** The card at a point of the sheet; -1 where there is none. */
    int indexAt(const QPointF &pos) const;

    /** Those of the selected cards, in the order of the grid. */
    QList<QSharedPointer<IFile>> selectedFiles() const;

    /** The card that the keys act on, -1 while there is none. */
    int currentIndex() const { return m_current; }
    /**
     * Makes a card the current one and selects it, or the range that began where the
     * last single card was selected, in place of all others or in addition to them.
     * A selection that changes is told once.
     */
    void moveTo(int index, Selecting selecting);
    /** As if the user had pointed at the card: the next range begins there. */
    void beginAt(int index);
    /** Selects the current card or no longer does. */
    void toggleCurrent();

    /** Lets the current card show that it is. */
    void setFocusShown(bool shown);
    /** The card with the focus frame, if any. */
    const GridEmbroideryItem *focusedCard() const;

    /** For cards: the user wants a closer look at the design. */
    void requestOpen(const QSharedPointer<IFile> &file) { emit openRequested(file); }

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
    /** The user wants a closer look at the design. */
    void openRequested(const QSharedPointer<IFile> &file);
    /** Another card is the current one. */
    void currentChanged(int index);

private:
    void replaceCards(const QList<QSharedPointer<IFile>> &files);
    void deleteCards(const QList<GridEmbroideryItem *> &cards);
    void setCurrent(int index);
    void updateCurrentCard();
    void selectRange(int first, int last, bool keepOthers);

    QList<QSharedPointer<IFile>> m_files;
    // Parallel to m_files.
    QList<GridEmbroideryItem *> m_items;
    QSet<GridEmbroideryItem *> m_exposedItems;
    ThumbnailCache m_thumbnails;
    int m_current = -1;
    // Where a range begins.
    int m_anchor = -1;
    bool m_focusShown = false;
    int m_columns = 1;
    double m_rowHeight = 0.0;
    int m_preferredSceneWidth = 1024;
    double m_scaleFactor = 1.0;
    bool m_inSelectionChange = false;
};
