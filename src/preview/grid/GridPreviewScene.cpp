#include "preview/grid/GridPreviewScene.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
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

bool comesBefore(const QGraphicsItem *a, const QGraphicsItem *b)
{
    return a->y() < b->y() || (a->y() == b->y() && a->x() < b->x());
}

} // namespace

GridPreviewScene::GridPreviewScene(QObject *parent) : EditorScene(parent)
{
    connect(this, &QGraphicsScene::selectionChanged, this, &GridPreviewScene::onSelectionChanged);
    if (HooplineApplication *application = HooplineApplication::instance()) {
        connect(application, &HooplineApplication::syncGlobalSettings, this,
                &GridPreviewScene::refresh, Qt::QueuedConnection);
    }
    placeSprites(m_preferredSceneWidth);
}

GridPreviewScene::~GridPreviewScene()
{
    // The base class ends the selected cards, and there is no telling it any more.
    disconnect(this, &QGraphicsScene::selectionChanged, this, nullptr);
}

void GridPreviewScene::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    if (files != m_files) {
        replaceCards(files);
    }
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
    GridEmbroideryItem *current = m_items.value(m_current);
    GridEmbroideryItem *anchor = m_items.value(m_anchor);

    SceneIndexPause pause(this);
    pause.begin();
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
    m_current = current != nullptr ? m_items.indexOf(current) : -1;
    m_anchor = anchor != nullptr ? m_items.indexOf(anchor) : -1;
    deleteCards(spare.values());
    placeSprites(m_preferredSceneWidth);
}

void GridPreviewScene::deleteCards(const QList<GridEmbroideryItem *> &cards)
{
    if (cards.size() >= ManyCards) {
        // The scene looks for an item that leaves it among all others, from the
        // lowest on. So they go to the bottom, the first of them lowest; the
        // look-up makes a scene without an index sort.
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
    int columns = 0;
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
        columns += card->y() == m_items.first()->y() ? 1 : 0;
    }
    m_columns = std::max(columns, 1);
    m_rowHeight = m_items.isEmpty() ? 0.0 : rowHeight + spacing;
    setSceneRect(sheet.adjusted(-margin, -margin, margin, margin));
}

int GridPreviewScene::firstIndexBelow(double y) const
{
    // Rows follow each other downwards and their cards are equally high.
    const auto isAbove = [y](const GridEmbroideryItem *card) {
        return card->y() + card->rect().bottom() <= y;
    };
    return int(std::partition_point(m_items.constBegin(), m_items.constEnd(), isAbove) -
               m_items.constBegin());
}

int GridPreviewScene::indexAt(const QPointF &pos) const
{
    const int first = firstIndexBelow(pos.y());
    const int end = std::min(first + m_columns, count());
    for (int i = first; i < end; ++i) {
        if (m_items.at(i)->sceneBoundingRect().contains(pos)) {
            return i;
        }
    }
    return -1;
}

void GridPreviewScene::areaExposed(const QRectF &area)
{
    QSet<GridEmbroideryItem *> exposedItems;
    auto card = m_items.constBegin() + firstIndexBelow(area.top());
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
    emit filesSelected(selectedFiles());
}

QList<QSharedPointer<IFile>> GridPreviewScene::selectedFiles() const
{
    // A few of many cards, as a rule: sorting those is faster than asking all.
    QList<QGraphicsItem *> cards = selectedItems();
    std::sort(cards.begin(), cards.end(), comesBefore);
    QList<QSharedPointer<IFile>> selected;
    selected.reserve(cards.size());
    for (const QGraphicsItem *card : qAsConst(cards)) {
        selected.append(static_cast<const GridEmbroideryItem *>(card)->file());
    }
    return selected;
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

void GridPreviewScene::moveTo(int index, Selecting selecting)
{
    if (m_anchor < 0) {
        m_anchor = m_current >= 0 ? m_current : index;
    }
    setCurrent(index);
    switch (selecting) {
    case SelectNothing:
        break;
    case SelectCard:
        m_anchor = index;
        selectRange(index, index, false);
        break;
    case SelectRange:
    case AddRange:
        selectRange(std::min(m_anchor, index), std::max(m_anchor, index), selecting == AddRange);
        break;
    }
}

void GridPreviewScene::beginAt(int index)
{
    m_anchor = index;
    setCurrent(index);
}

void GridPreviewScene::toggleCurrent()
{
    if (m_current >= 0) {
        m_anchor = m_current;
        m_items.at(m_current)->setSelected(!m_items.at(m_current)->isSelected());
    }
}

void GridPreviewScene::setCurrent(int index)
{
    if (index != m_current) {
        updateCurrentCard();
        m_current = index;
        updateCurrentCard();
        emit currentChanged(index);
    }
}

void GridPreviewScene::updateCurrentCard()
{
    if (m_current >= 0) {
        m_items.at(m_current)->update();
    }
}

void GridPreviewScene::setFocusShown(bool shown)
{
    if (shown != m_focusShown) {
        m_focusShown = shown;
        updateCurrentCard();
    }
}

const GridEmbroideryItem *GridPreviewScene::focusedCard() const
{
    return m_focusShown && m_current >= 0 ? m_items.at(m_current) : nullptr;
}

void GridPreviewScene::selectRange(int first, int last, bool keepOthers)
{
    bool changed = false;
    const auto select = [&changed](QGraphicsItem *card, bool selected) {
        changed |= card->isSelected() != selected;
        card->setSelected(selected);
    };
    {
        QScopedValueRollback<bool> guard(m_inSelectionChange, true);
        const QList<QGraphicsItem *> before =
            keepOthers ? QList<QGraphicsItem *>() : selectedItems();
        for (QGraphicsItem *card : before) {
            if (comesBefore(card, m_items.at(first)) || comesBefore(m_items.at(last), card)) {
                select(card, false);
            }
        }
        for (int i = first; i <= last; ++i) {
            select(m_items.at(i), true);
        }
    }
    if (changed) {
        onSelectionChanged();
    }
}

void GridPreviewScene::refresh()
{
    const bool imperial = GlobalSettings().imperialUnits();
    for (GridEmbroideryItem *card : qAsConst(m_items)) {
        card->refreshLabels(imperial);
    }
}
