#include "preview/grid/GridPreviewScene.h"

#include "app/application/HooplineApplication.h"
#include "app/base/GlobalSettings.h"
#include "preview/grid/GridEmbroideryItem.h"
#include "preview/grid/SceneIndexPause.h"
#include <algorithm>
#include <QHash>
#include <QScopedValueRollback>

namespace {

constexpr double MarginPixels = 10.0;
constexpr double SpacingPixels = 20.0;

// From as many on, deleting cards one by one is slower than what deleteCards() does first.
constexpr int ManyCards = 1000;

} // namespace

GridPreviewScene::GridPreviewScene(QObject *parent) : EditorScene(parent)
{
    connect(this, &QGraphicsScene::selectionChanged, this, &GridPreviewScene::onSelectionChanged);
    if (HooplineApplication *application = HooplineApplication::instance()) {
        connect(application, &HooplineApplication::syncGlobalSettings, this,
                &GridPreviewScene::refresh, Qt::QueuedConnection);
    }
}

GridPreviewScene::~GridPreviewScene()
{
    // The end of selected cards is not news when the scene goes.
    m_inSelectionChange = true;
}

void GridPreviewScene::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    replaceCards(files);
    // Selected cards may have gone.
    onSelectionChanged();
}

void GridPreviewScene::replaceCards(const QList<QSharedPointer<IFile>> &files)
{
    QScopedValueRollback<bool> guard(m_inSelectionChange, true);
    QHash<QSharedPointer<IFile>, GridEmbroideryItem *> spare;
    spare.reserve(m_files.size());
    for (int i = 0; i < m_files.size(); ++i) {
        spare.insert(m_files.at(i), m_items.at(i));
    }
    const bool imperial = GlobalSettings().imperialUnits();

    m_files = files;
    m_items.clear();
    m_items.reserve(files.size());
    for (const QSharedPointer<IFile> &file : files) {
        GridEmbroideryItem *card = spare.take(file);
        if (card == nullptr) {
            card = new GridEmbroideryItem(file, this, imperial);
        }
        card->setViewScaleFactor(m_scaleFactor);
        m_items.append(card);
    }
    deleteCards(spare.values());
    placeSprites(m_preferredSceneWidth);
}

void GridPreviewScene::deleteCards(const QList<GridEmbroideryItem *> &cards)
{
    SceneIndexPause pause(this);
    if (cards.size() >= ManyCards) {
        // The scene looks for an item that leaves it among all others, from the
        // lowest on. So they go to the bottom, the first of them lowest; the
        // look-up makes the scene sort.
        pause.begin();
        for (int i = 0; i < cards.size(); ++i) {
            cards.at(i)->setZValue(i - cards.size());
        }
        items(QPointF());
    }
    for (GridEmbroideryItem *card : cards) {
        m_exposedItems.remove(card);
        delete card;
    }
}

void GridPreviewScene::setPreferredSceneWidth(int width)
{
    m_preferredSceneWidth = width;
    placeSprites(width);
}

void GridPreviewScene::setScaleFactor(double newScale)
{
    SceneIndexPause pause(this);
    if (newScale != m_scaleFactor) {
        pause.begin();
    }
    m_preferredSceneWidth = int(m_scaleFactor / newScale * m_preferredSceneWidth);
    m_scaleFactor = newScale;
    for (GridEmbroideryItem *card : qAsConst(m_items)) {
        card->setViewScaleFactor(newScale);
    }
    placeSprites(m_preferredSceneWidth);
}

void GridPreviewScene::placeSprites(int width)
{
    SceneIndexPause pause(this);
    const int margin = int(MarginPixels / m_scaleFactor);
    const int spacing = int(SpacingPixels / m_scaleFactor);
    int x = margin;
    int y = margin;
    int rowHeight = 0;
    QRectF sheet;
    for (GridEmbroideryItem *card : qAsConst(m_items)) {
        const QRectF rect = card->rect();
        const int w = qRound(rect.right()) - qRound(rect.left());
        const int h = qRound(rect.bottom()) - qRound(rect.top());
        if (x + margin + w >= width) {
            y += rowHeight + spacing;
            rowHeight = 0;
            x = margin;
        }
        if (card->pos() != QPointF(x, y)) {
            pause.begin();
            card->setPos(x, y);
        }
        sheet |= rect.translated(x, y);
        rowHeight = std::max(rowHeight, h);
        x += w + spacing;
    }
    setSceneRect(sheet.adjusted(-margin, -margin, margin, margin));
}

void GridPreviewScene::areaExposed(const QRectF &area)
{
    // Rows follow each other downwards and their cards are equally high.
    const auto isAbove = [&area](const GridEmbroideryItem *card) {
        return card->y() + card->rect().bottom() <= area.top();
    };
    QSet<GridEmbroideryItem *> exposedItems;
    auto card = std::partition_point(m_items.constBegin(), m_items.constEnd(), isAbove);
    for (; card != m_items.constEnd() && (*card)->y() < area.bottom(); ++card) {
        exposedItems.insert(*card);
    }
    for (GridEmbroideryItem *hidden : qAsConst(m_exposedItems)) {
        if (!exposedItems.contains(hidden)) {
            hidden->setExposed(false);
        }
    }
    for (GridEmbroideryItem *shown : qAsConst(exposedItems)) {
        shown->setExposed(true);
    }
    m_exposedItems = exposedItems;
}

void GridPreviewScene::onSelectionChanged()
{
    if (m_inSelectionChange) {
        return;
    }
    QScopedValueRollback<bool> guard(m_inSelectionChange, true);
    QList<QSharedPointer<IFile>> selected;
    for (const GridEmbroideryItem *card : qAsConst(m_items)) {
        if (card->isSelected()) {
            selected.append(card->file());
        }
    }
    emit filesSelected(selected);
}

void GridPreviewScene::selectFiles(const QList<QSharedPointer<IFile>> &files)
{
    if (m_inSelectionChange) {
        return;
    }
    QScopedValueRollback<bool> guard(m_inSelectionChange, true);
    const QSet<QSharedPointer<IFile>> wanted(files.begin(), files.end());
    for (GridEmbroideryItem *card : qAsConst(m_items)) {
        const bool select = wanted.contains(card->file());
        if (card->isSelected() != select) {
            card->setSelected(select);
        }
    }
}

void GridPreviewScene::refresh()
{
    const bool imperial = GlobalSettings().imperialUnits();
    for (GridEmbroideryItem *card : qAsConst(m_items)) {
        card->refreshLabels(imperial);
    }
}
