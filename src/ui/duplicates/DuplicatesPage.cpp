#include "ui/duplicates/DuplicatesPage.h"

#include "base/GlobalSettings.h"
#include "catalogue/duplicates/DuplicateWords.h"
#include "ui/duplicates/DuplicateCardDelegate.h"
#include "ui/duplicates/DuplicateGroupsModel.h"
#include "ui/duplicates/DuplicateMembersModel.h"
#include "ui/duplicates/DuplicateTexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int GroupsWidth = 240;
constexpr int MembersWidth = 680;
constexpr int CardSpacing = 8;

QListView *listView(QAbstractItemModel *model, QWidget *parent)
{
    auto *view = new QListView(parent);
    view->setModel(model);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setUniformItemSizes(true);
    return view;
}

} // namespace

DuplicatesPage::DuplicatesPage(QWidget *parent)
    : QWidget(parent), m_groups(new DuplicateGroupsModel(this)),
      m_members(new DuplicateMembersModel(GlobalSettings().imperialUnits(), this)),
      m_summary(new QLabel(this)), m_certainty(new QLabel(this)),
      m_groupsView(listView(m_groups, this)), m_membersView(listView(m_members, this)),
      m_clearButton(new QPushButton(tr("&Keep the chosen one, the others to the trash..."), this)),
      m_closeButton(new QPushButton(tr("Close"), this))
{
    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->addWidget(createGroupsPane());
    splitter->addWidget(createMembersPane());
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({GroupsWidth, MembersWidth});
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_summary, 1);
    buttons->addWidget(m_clearButton);
    buttons->addWidget(m_closeButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(buttons);

    m_summary->setWordWrap(true);
    m_clearButton->setAutoDefault(false);
    m_closeButton->setAutoDefault(false);
    connect(m_groupsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DuplicatesPage::showGroup);
    connect(m_clearButton, &QPushButton::clicked, this, &DuplicatesPage::askForClearing);
    connect(m_closeButton, &QPushButton::clicked, this, &DuplicatesPage::closed);
}

QWidget *DuplicatesPage::createGroupsPane()
{
    m_groupsView->setObjectName(QStringLiteral("groups"));
    m_groupsView->setAccessibleName(tr("Groups of duplicates"));
    m_groupsView->setTextElideMode(Qt::ElideRight);
    m_groupsView->setWordWrap(false);
    return m_groupsView;
}

QWidget *DuplicatesPage::createMembersPane()
{
    m_membersView->setObjectName(QStringLiteral("members"));
    m_membersView->setAccessibleName(tr("Designs of the group; the chosen one is kept"));
    m_membersView->setViewMode(QListView::IconMode);
    m_membersView->setMovement(QListView::Static);
    m_membersView->setResizeMode(QListView::Adjust);
    m_membersView->setSpacing(CardSpacing);
    m_membersView->setItemDelegate(new DuplicateCardDelegate(m_members, m_membersView->viewport()));
    m_certainty->setWordWrap(true);
    auto *pane = new QWidget(this);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_certainty);
    layout->addWidget(m_membersView, 1);
    return pane;
}

void DuplicatesPage::setResult(const DuplicateResult &result, const Files &files)
{
    m_unread = result.unread;
    m_groups->setGroups(result.groups, files);
    chooseGroup(0);
    m_groupsView->setFocus(Qt::OtherFocusReason);
}

void DuplicatesPage::removeFiles(const QStringList &paths)
{
    const int row = m_groupsView->currentIndex().row();
    m_groups->removeFiles(paths);
    chooseGroup(row);
}

void DuplicatesPage::setBusy(bool busy)
{
    m_busy = busy;
    m_groupsView->setEnabled(!busy);
    m_membersView->setEnabled(!busy);
    m_clearButton->setEnabled(!busy && m_members->rowCount() > 0);
    updateSummary();
}

void DuplicatesPage::chooseGroup(int row)
{
    m_groupsView->setCurrentIndex(m_groups->index(qMin(row, m_groups->rowCount() - 1)));
    showGroup();
    updateSummary();
}

void DuplicatesPage::showGroup()
{
    const int row = m_groupsView->currentIndex().row();
    const Files files = row < 0 ? Files() : m_groups->filesAt(row);
    m_members->setFiles(files);
    m_certainty->setText(row < 0 ? tr("There are no duplicates.")
                                 : DuplicateTexts::certainty(m_groups->likenessAt(row)));
    if (row >= 0)
        m_membersView->setCurrentIndex(m_members->index(DuplicateWords::worthiest(files)));
    m_clearButton->setEnabled(!m_busy && row >= 0);
}

void DuplicatesPage::updateSummary()
{
    if (m_busy) {
        m_summary->setText(tr("Moving to the trash..."));
        return;
    }
    QStringList parts;
    if (m_groups->rowCount() > 0)
        parts.append(tr("%n group(s)", nullptr, m_groups->rowCount()));
    if (m_unread > 0)
        parts.append(tr("%n design(s) could not be compared.", nullptr, m_unread));
    m_summary->setText(parts.join(QLatin1Char('\n')));
    m_summary->setToolTip(
        m_unread > 0 ? tr("They are missing, damaged, empty or have changed since the last scan.")
                     : QString());
}

void DuplicatesPage::askForClearing()
{
    const int chosen = m_membersView->currentIndex().row();
    if (chosen < 0)
        return;
    Files others = m_members->files();
    const QSharedPointer<IFile> kept = others.takeAt(chosen);
    emit clearingWanted(kept, others);
}
