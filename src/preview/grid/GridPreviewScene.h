#pragma once

#include "catalogue/records/IFile.h"
#include "preview/grid/EditorScene.h"
#include "preview/grid/SheetLayout.h"
#include "preview/grid/ThumbnailCache.h"
#include <QBitArray>
#include <QHash>
#include <QList>
#include <QSharedPointer>

class GridEmbroideryItem;

/**
 * The sheet of cards, one for each file. Only those that the view shows are there as
 * items, so that a hundred thousand come and go as fast as a few; which ones are selected
 * is known here and not by the items.
 */
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

    int count() const { return m_files.size(); }
    /** The file at @p index, which must be one of count(). */
    const QSharedPointer<IFile> &fileAt(int index) const { return m_files.at(index); }
    /**
     * The card at @p index, which must be one of count(). Made if it is not there; out of
     * the view it is so until the view is painted the next time.
     */
    GridEmbroideryItem *cardAt(int index);
    /** Where the card of this file is; -1 where it has none. */
    int indexOf(const QSharedPointer<IFile> &file) const { return m_files.indexOf(file); }
    /** Where the cards stand, whether they are there or not. */
    const SheetLayout &sheetLayout() const { return m_layout; }

    bool isSelected(int index) const { return m_selected.testBit(index); }
    int selectedCount() const { return m_selected.count(true); }
    /** Those of the selected cards, in the order of the grid. */
    QList<QSharedPointer<IFile>> selectedFiles() const;

    // Each tells a selection that changes, once.
    void setSelected(int index, bool selected);
    void selectOnly(int index);
    void selectAll();
    void selectNone();
    /** Selects the cards that @p area touches, in place of all others or in addition to them. */
    void selectArea(const QRectF &area, bool keepOthers);

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
    /** Places the cards in rows on a sheet of @p width scene units. */
    void placeSprites(int width);
    void setPreferredSceneWidth(int width);
    /** Lays the sheet out for a view that draws @p newScale pixels per scene unit. */
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
    void setCurrent(int index);
    void updateCurrentCard();
    void selectRange(int first, int last, bool keepOthers);
    bool select(const QBitArray &selected);

    QList<QSharedPointer<IFile>> m_files;
    QBitArray m_selected; ///< parallel to m_files
    SheetLayout m_layout;
    QHash<int, GridEmbroideryItem *> m_cards; ///< those that are there, by their index
    ThumbnailCache m_thumbnails;
    int m_current = -1;
    // Where a range begins.
    int m_anchor = -1;
    bool m_focusShown = false;
    int m_preferredSceneWidth = 1024;
    double m_scaleFactor = 1.0;
    bool m_inSelectionChange = false;
};
