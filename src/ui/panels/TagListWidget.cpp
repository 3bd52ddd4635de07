#include "ui/panels/TagListWidget.h"

#include "ui/panels/ElidingDelegate.h"
#include "widgets/controls/ElisionToolTip.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {

constexpr int IconExtent = 16;
constexpr int FadeIntervalMs = 50;
constexpr qreal FadeStep = 0.05;
constexpr int LongestMenuText = 40;

QString menuText(QString tag)
{
    if (tag.length() > LongestMenuText)
        tag = tag.left(LongestMenuText) + QChar(0x2026);
    return tag.replace(QLatin1Char('&'), QLatin1String("&&"))
        .replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

TagListWidget::TagListWidget(QWidget *parent)
    : QListView(parent), m_model(new QStandardItemModel(this)),
      m_tagIcon(QStringLiteral(":/icons/small_tag.svg")),
      m_allIcon(QStringLiteral(":/icons/small_all.svg"))
{
    setModel(m_model);
    setItemDelegate(new ElidingDelegate(this));
    new ElisionToolTip(this);
    setEditTriggers(NoEditTriggers);
    setIconSize(QSize(IconExtent, IconExtent));
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Tags"));
    m_fadeTimer.setInterval(FadeIntervalMs);
    connect(&m_fadeTimer, &QTimer::timeout, this, &TagListWidget::animateItems);
    connect(m_model, &QStandardItemModel::itemChanged, this, &TagListWidget::onItemChanged);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TagListWidget::onItemSelectionChanged);
    connect(itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &TagListWidget::onEditorClosed);
    setTags({});
}

void TagListWidget::setTags(const QStringList &tags)
{
    // Where the old name is still there, the new one was refused.
    const bool refused = !m_selectedOldName.isEmpty() && tags.contains(m_selectedOldName);
    const QString selected = refused ? m_selectedOldName : selectedTag();
    const int scrolled = verticalScrollBar()->value();
    m_addedItem = nullptr;
    m_editedOldName.clear();
    m_highlightedItems.clear();
    m_fadeTimer.stop();
    m_model->clear();

    m_allItem = new QStandardItem(m_allIcon, tr("- show all files -"));
    m_allItem->setEditable(false);
    m_model->appendRow(m_allItem);
    for (const QString &tag : tags)
        m_model->appendRow(createTagItem(tag));
    selectTag(selected);
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

QString TagListWidget::commandTag() const
{
    return m_menuTag.isEmpty() ? selectedTag() : m_menuTag;
}

QString TagListWidget::selectedTag() const
{
    const QStandardItem *item = selectedItem();
    return item && item != m_allItem ? item->text() : QString();
}

void TagListWidget::selectTag(const QString &tag)
{
    const QStandardItem *item = findItem(tag);
    const QModelIndex index = (item ? item : m_allItem)->index();
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void TagListWidget::highlightTag(const QString &tag)
{
    QStandardItem *item = findItem(tag);
    if (!item)
        return;
    scrollIntoView(item);
    setItemBackground(item, palette().color(QPalette::Highlight));
    if (!m_highlightedItems.contains(item))
        m_highlightedItems.append(item);
    m_fadeTimer.start();
}

void TagListWidget::startAddingTag()
{
    const QStandardItem *selected = selectedItem();
    const int row = selected ? selected->row() + 1 : 1;
    QStandardItem *item = createTagItem(tr("<enter tag name>"));
    m_model->insertRow(row, item);
    m_addedItem = item;
    m_editedOldName.clear();
    scrollIntoView(item);
    edit(item->index());
}

void TagListWidget::startRenamingTag()
{
    const QStandardItem *item = findItem(commandTag());
    if (!item)
        return;
    scrollIntoView(item);
    m_editedOldName = item->text();
    m_renamingUnselected = item != selectedItem();
    edit(item->index());
}

void TagListWidget::mousePressEvent(QMouseEvent *event)
{
    // The others would choose a tag, and so what the grid shows, on the way to the menu.
    if (event->button() == Qt::LeftButton)
        QListView::mousePressEvent(event);
}

void TagListWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F2)
        startRenamingTag();
    else if (event->key() == Qt::Key_Delete && !selectedTag().isEmpty())
        emit removeTag();
    else
        QListView::keyPressEvent(event);
}

void TagListWidget::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
    const QStandardItem *item = m_model->itemFromIndex(index);
    if (!item || item == m_allItem)
        return;

    const QScopedValueRollback<QString> menuTag(m_menuTag, item->text());
    QMenu menu(this);
    const QString name = menuText(item->text());
    menu.addAction(tr("Remove '%1'").arg(name), this, &TagListWidget::removeTag, Qt::Key_Delete);
    menu.addAction(tr("Rename '%1'").arg(name), this, &TagListWidget::startRenamingTag, Qt::Key_F2);
    menu.exec(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(index).center()));
}

void TagListWidget::onItemSelectionChanged()
{
    emit selectedTagChanged(selectedTag());
}

void TagListWidget::onItemChanged(QStandardItem *item)
{
    if (m_changingItems)
        return;
    const QString text = item->text().trimmed();
    {
        const QScopedValueRollback<bool> guard(m_changingItems, true);
        item->setText(text);
    }
    if (item == m_addedItem)
        finishAdding(text);
    else
        finishRenaming(text);
}

void TagListWidget::finishAdding(const QString &text)
{
    // The list may be built anew while the signal is being handled.
    m_addedItem = nullptr;
    emit tagAdded(text);
    highlightTag(text);
}

void TagListWidget::finishRenaming(const QString &text)
{
    const QString oldName = m_editedOldName;
    m_editedOldName.clear();
    const QScopedValueRollback<QString> told(m_selectedOldName,
                                             m_renamingUnselected ? QString() : oldName);
    if (!oldName.isEmpty() && text != oldName)
        emit tagRenamed(oldName, text);
}

void TagListWidget::onEditorClosed()
{
    if (m_addedItem)
        m_model->removeRow(m_addedItem->row());
    m_addedItem = nullptr;
    m_editedOldName.clear();
    m_renamingUnselected = false;
    setFocus();
}

void TagListWidget::animateItems()
{
    const QList<QStandardItem *> items = m_highlightedItems;
    for (QStandardItem *item : items) {
        QColor color = item->background().color();
        if (color.alphaF() > FadeStep) {
            color.setAlphaF(color.alphaF() - FadeStep);
            setItemBackground(item, color);
        } else {
            // No brush at all shows the base colour, whichever the palette has by then.
            setItemBackground(item, QVariant());
            m_highlightedItems.removeOne(item);
        }
    }
    if (m_highlightedItems.isEmpty())
        m_fadeTimer.stop();
}

QStandardItem *TagListWidget::findItem(const QString &tag) const
{
    for (int row = 1; row < m_model->rowCount(); ++row) {
        if (m_model->item(row)->text() == tag)
            return m_model->item(row);
    }
    return nullptr;
}

QStandardItem *TagListWidget::selectedItem() const
{
    const QModelIndexList indexes = selectionModel()->selectedIndexes();
    return indexes.isEmpty() ? nullptr : m_model->itemFromIndex(indexes.first());
}

QStandardItem *TagListWidget::createTagItem(const QString &text) const
{
    return new QStandardItem(m_tagIcon, text);
}

void TagListWidget::scrollIntoView(const QStandardItem *item)
{
    if (!viewport()->rect().contains(visualRect(item->index())))
        scrollTo(item->index(), PositionAtCenter);
}

void TagListWidget::setItemBackground(QStandardItem *item, const QVariant &background)
{
    const QScopedValueRollback<bool> guard(m_changingItems, true);
    const bool none = !background.isValid();
    item->setData(none ? background : QBrush(background.value<QColor>()), Qt::BackgroundRole);
}
