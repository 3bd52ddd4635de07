#include "preview/grid/GridPreviewScene.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "preview/grid/GridEmbroideryItem.h"
#include <algorithm>
#include <QScopedValueRollback>
#include <QSet>

GridPreviewScene::GridPreviewScene(QObject *parent) : EditorScene(parent)
{
    // There are never more items than a view can show.
    setItemIndexMethod(QGraphicsScene::NoIndex);
    if (HooplineApplication *application = HooplineApplication::instance()) {
        connect(application, &HooplineApplication::syncGlobalSettings, this,
                &GridPreviewScene::refresh, Qt::QueuedConnection);
    }
    placeSprites(m_preferredSceneWidth);
}

GridPreviewScene::~GridPreviewScene() = default;

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
    const QSharedPointer<IFile> current = m_files.value(m_current);
    const QSharedPointer<IFile> anchor = m_files.value(m_anchor);
    const QList<QSharedPointer<IFile>> wereSelected = selectedFiles();
    const QSet<QSharedPointer<IFile>> selected(wereSelected.begin(), wereSelected.end());
    QHash<QSharedPointer<IFile>, GridEmbroideryItem *> spare;
    for (GridEmbroideryItem *card : qAsConst(m_cards)) {
        spare.insert(card->file(), card);
    }

    m_files = files;
    m_selected = QBitArray(files.size());
    m_cards.clear();
    m_current = -1;
    m_anchor = -1;
    for (int i = 0; i < files.size(); ++i) {
        const QSharedPointer<IFile> &file = files.at(i);
        if (GridEmbroideryItem *card = spare.take(file)) {
            card->setIndex(i);
            m_cards.insert(i, card);
        }
        if (selected.contains(file)) {
            m_selected.setBit(i);
        }
        if (file == current) {
            m_current = i;
        }
        if (file == anchor) {
            m_anchor = i;
        }
    }
    qDeleteAll(spare);
    placeSprites(m_preferredSceneWidth);
}

GridEmbroideryItem *GridPreviewScene::cardAt(int index)
{
    if (GridEmbroideryItem *card = m_cards.value(index)) {
        return card;
    }
    auto *card = new GridEmbroideryItem(m_files.at(index), this, GlobalSettings().imperialUnits());
    m_cards.insert(index, card);
    card->setIndex(index);
    card->setViewScaleFactor(m_scaleFactor);
    card->setPos(m_layout.rectOf(index).topLeft());
    return card;
}

void GridPreviewScene::setPreferredSceneWidth(int width)
{
    m_preferredSceneWidth = width;
    placeSprites(width);
}

void GridPreviewScene::setScaleFactor(double newScale)
{
    m_preferredSceneWidth = int(m_scaleFactor / newScale * m_preferredSceneWidth);
    m_scaleFactor = newScale;
    for (GridEmbroideryItem *card : qAsConst(m_cards)) {
        card->setViewScaleFactor(newScale);
    }
    placeSprites(m_preferredSceneWidth);
}

void GridPreviewScene::placeSprites(int width)
{
    m_layout =
        SheetLayout(count(), width, GridEmbroideryItem::sizeAt(m_scaleFactor), m_scaleFactor);
    for (auto card = m_cards.cbegin(); card != m_cards.cend(); ++card) {
        (*card)->setPos(m_layout.rectOf(card.key()).topLeft());
    }
    setSceneRect(m_layout.sheet());
    // Cards that are not there yet are made when the view is painted.
    update();
}

void GridPreviewScene::areaExposed(const QRectF &area)
{
    const SheetLayout::Cells cells = m_layout.cellsIn(area);
    const int first = cells.firstRow * m_layout.columns();
    const int end = std::min((cells.lastRow + 1) * m_layout.columns(), count());
    for (auto card = m_cards.begin(); card != m_cards.end();) {
        if (card.key() >= first && card.key() < end) {
            ++card;
        } else {
            delete *card;
            card = m_cards.erase(card);
        }
    }
    for (int i = first; i < end; ++i) {
        cardAt(i);
    }
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
    const int selectedCount = m_selected.count(true);
    if (selectedCount == count()) {
        return m_files;
    }
    QList<QSharedPointer<IFile>> selected;
    selected.reserve(selectedCount);
    for (int i = 0; selected.size() < selectedCount; ++i) {
        if (m_selected.testBit(i)) {
            selected.append(m_files.at(i));
        }
    }
    return selected;
}

void GridPreviewScene::selectFiles(const QList<QSharedPointer<IFile>> &files)
{
    if (m_inSelectionChange) {
        return;
    }
    QScopedValueRollback<bool> guard(m_inSelectionChange, true);
    if (files == m_files) {
        select(QBitArray(count(), true));
        return;
    }
    const QSet<QSharedPointer<IFile>> wanted(files.begin(), files.end());
    QBitArray selected(count());
    for (int i = 0; i < count() && !wanted.isEmpty(); ++i) {
        selected.setBit(i, wanted.contains(m_files.at(i)));
    }
    select(selected);
}

/** Whether that changes anything. */
bool GridPreviewScene::select(const QBitArray &selected)
{
    if (selected == m_selected) {
        return false;
    }
    m_selected = selected;
    for (GridEmbroideryItem *card : qAsConst(m_cards)) {
        card->update();
    }
    return true;
}

void GridPreviewScene::setSelected(int index, bool selected)
{
    QBitArray changed = m_selected;
    changed.setBit(index, selected);
    if (select(changed)) {
        onSelectionChanged();
    }
}

void GridPreviewScene::selectOnly(int index)
{
    selectRange(index, index, false);
}

void GridPreviewScene::selectAll()
{
    if (select(QBitArray(count(), true))) {
        onSelectionChanged();
    }
}

void GridPreviewScene::selectNone()
{
    if (select(QBitArray(count()))) {
        onSelectionChanged();
    }
}

void GridPreviewScene::selectArea(const QRectF &area, bool keepOthers)
{
    QBitArray selected = keepOthers ? m_selected : QBitArray(count());
    const SheetLayout::Cells cells = m_layout.cellsIn(area);
    for (int row = cells.firstRow; row <= cells.lastRow; ++row) {
        const int first = row * m_layout.columns() + cells.firstColumn;
        const int end = std::min(row * m_layout.columns() + cells.lastColumn + 1, count());
        if (first < end) {
            selected.fill(true, first, end);
        }
    }
    if (select(selected)) {
        onSelectionChanged();
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
        setSelected(m_current, !isSelected(m_current));
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
    if (GridEmbroideryItem *card = m_cards.value(m_current)) {
        card->update();
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
    return m_focusShown ? m_cards.value(m_current) : nullptr;
}

void GridPreviewScene::selectRange(int first, int last, bool keepOthers)
{
    QBitArray selected = keepOthers ? m_selected : QBitArray(count());
    selected.fill(true, first, last + 1);
    if (select(selected)) {
        onSelectionChanged();
    }
}

void GridPreviewScene::refresh()
{
    const bool imperial = GlobalSettings().imperialUnits();
    for (GridEmbroideryItem *card : qAsConst(m_cards)) {
        card->refreshLabels(imperial);
    }
}
