#include "ui/panels/SavedSearchesBox.h"

#include "app/frame/GAction.h"
#include "base/Error.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/query/SavedSearches.h"
#include "ui/panels/ElidingDelegate.h"
#include "widgets/controls/GExpandingTitle.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/style/WidgetHelper.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int IconExtent = 16;
constexpr int HintMargin = 12;

enum Role { NameRole = Qt::UserRole, QueryRole };

} // namespace

SavedSearchesBox::SavedSearchesBox(QWidget *parent, SavedSearches *searches, IFilterModel *filter)
    : GSideBarBox(tr("Saved searches"), parent), m_searches(searches), m_filter(filter),
      m_saveAction(new GAction(tr("Save search"), this)),
      m_renameAction(new GAction(tr("Rename saved search"), this)),
      m_removeAction(new GAction(tr("Remove saved search"), this)), m_list(new QListWidget(this)),
      m_hint(new QLabel(tr("Type a search above the designs and save it to find it here."), this))
{
    setObjectName(QStringLiteral("SavedSearchesBox"));
    setExpandable(false);
    m_saveAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    // For the menu to tell; the list answers to them.
    m_renameAction->setShortcut(Qt::Key_F2);
    m_removeAction->setShortcut(Qt::Key_Delete);
    for (QAction *action : {m_renameAction, m_removeAction})
        action->setShortcutContext(Qt::WidgetShortcut);
    createButtons();
    createList();
    connect(m_saveAction, &QAction::triggered, this, &SavedSearchesBox::saveCurrent);
    connect(m_renameAction, &QAction::triggered, this, &SavedSearchesBox::renameSelected);
    connect(m_removeAction, &QAction::triggered, this, &SavedSearchesBox::removeSelected);
    connect(m_searches, &SavedSearches::changed, this, &SavedSearchesBox::updateList);
    connect(m_filter, &IFilterModel::searchTextChanged, this, &SavedSearchesBox::updateState);
    updateList();
}

void SavedSearchesBox::createButtons()
{
    const auto addButton = [this](const char *icon, GAction *action) {
        const QString path = QStringLiteral(":/icons/%1.svg").arg(QLatin1String(icon));
        QToolButton *button = titleBar()->addButton(GIcon(path), action->text());
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button,
                [button, action] { button->setEnabled(action->isEnabled()); });
    };
    addButton("small_search", m_saveAction);
    addButton("small_trash", m_removeAction);
    addButton("small_rename", m_renameAction);
}

void SavedSearchesBox::createList()
{
    m_list->setItemDelegate(new ElidingDelegate(m_list));
    m_list->setIconSize(QSize(IconExtent, IconExtent));
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setAccessibleName(tr("Saved searches"));
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->installEventFilter(this);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setMargin(HintMargin);
    contentLayout()->addWidget(m_list);
    contentLayout()->addWidget(m_hint);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &SavedSearchesBox::applySelected);
    connect(m_list, &QListWidget::itemChanged, this, &SavedSearchesBox::onItemChanged);
    connect(m_list, &QListWidget::customContextMenuRequested, this,
            &SavedSearchesBox::showContextMenu);
}

void SavedSearchesBox::updateList()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    const GIcon icon(QStringLiteral(":/icons/small_search.svg"));
    m_list->clear();
    const QList<SavedSearch> searches = m_searches->all();
    for (const SavedSearch &search : searches) {
        auto *item = new QListWidgetItem(icon, search.name, m_list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setData(NameRole, search.name);
        item->setData(QueryRole, search.query);
        item->setToolTip(WidgetHelper::toolTipText(search.query));
        item->setData(Qt::AccessibleDescriptionRole, search.query);
    }
    m_list->setVisible(!searches.isEmpty());
    m_hint->setVisible(searches.isEmpty());
    updateState();
}

/** Selects the search that the filter is set to, as far as it is saved. */
void SavedSearchesBox::updateState()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    const QString query = m_filter->searchText();
    QListWidgetItem *item = itemOfQuery(query);
    if (item)
        m_list->setCurrentItem(item);
    else
        m_list->clearSelection();
    const auto remark = m_filter->searchRemark();
    const bool isUsable = !remark || remark->kind == QueryRemark::Hint;
    m_saveAction->setEnabled(!item && isUsable && !query.trimmed().isEmpty());
    m_renameAction->setEnabled(item);
    m_removeAction->setEnabled(item);
}

void SavedSearchesBox::applySelected()
{
    const QListWidgetItem *item = selectedItem();
    if (item && !m_updating)
        m_filter->setSearchSubstring(item->data(QueryRole).toString());
}

void SavedSearchesBox::saveCurrent()
{
    const QString query = m_filter->searchText();
    attempt([&] { m_searches->add({m_searches->freeName(query.simplified()), query}); });
    renameSelected();
}

void SavedSearchesBox::renameSelected()
{
    if (QListWidgetItem *item = selectedItem()) {
        m_list->scrollToItem(item);
        m_list->setFocus();
        m_list->editItem(item);
    }
}

void SavedSearchesBox::removeSelected()
{
    const QListWidgetItem *item = selectedItem();
    if (!item)
        return;
    const QString name = item->data(NameRole).toString();
    const auto answer = GMessageBox::question(tr("Remove the saved search '%1'?").arg(name),
                                              item->data(QueryRole).toString(), window());
    if (answer != QMessageBox::No)
        attempt([&] { m_searches->remove(name); });
}

void SavedSearchesBox::onItemChanged(QListWidgetItem *item)
{
    if (m_updating)
        return;
    const QString oldName = item->data(NameRole).toString();
    const QString newName = item->text();
    // The list is made anew, which its editor, still open, would not survive.
    QMetaObject::invokeMethod(
        this,
        [this, oldName, newName] {
            if (!newName.trimmed().isEmpty())
                attempt([&] { m_searches->rename(oldName, newName); });
            updateList();
        },
        Qt::QueuedConnection);
}

void SavedSearchesBox::showContextMenu(const QPoint &position)
{
    if (!m_list->itemAt(position))
        return;
    QMenu menu(this);
    menu.addAction(m_removeAction);
    menu.addAction(m_renameAction);
    menu.exec(m_list->viewport()->mapToGlobal(position));
}

void SavedSearchesBox::attempt(const std::function<void()> &change)
{
    try {
        change();
    } catch (const Error &error) {
        GMessageBox::critical(tr("Error"), error.toString(), window());
    }
}

QListWidgetItem *SavedSearchesBox::selectedItem() const
{
    return m_list->selectedItems().value(0);
}

QListWidgetItem *SavedSearchesBox::itemOfQuery(const QString &query) const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(QueryRole).toString() == query)
            return m_list->item(row);
    }
    return nullptr;
}

bool SavedSearchesBox::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = watched == m_list && event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        removeSelected();
        return true;
    }
    return GSideBarBox::eventFilter(watched, event);
}
