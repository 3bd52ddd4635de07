#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"
#include "catalogue/records/IFile.h"

#include <QList>
#include <QSharedPointer>
#include <QWidget>

class DuplicateGroupsModel;
class DuplicateMembersModel;
class QItemSelectionModel;
class QLabel;
class QListView;
class QPushButton;

/** The groups on the left, the designs of the chosen one side by side, and what to do. */
class DuplicatesPage : public QWidget
{
    Q_OBJECT

public:
    using Files = QList<QSharedPointer<IFile>>;

    explicit DuplicatesPage(QWidget *parent);

    void setResult(const DuplicateResult &result, const Files &files);

    /** Files that have gone; the next group is chosen where one goes with them. */
    void removeFiles(const QStringList &paths);

    /** While files are moved nothing can be chosen. */
    void setBusy(bool busy);

signals:
    /** The user wants @p kept and none of @p others; neither is empty. */
    void clearingWanted(const QSharedPointer<IFile> &kept, const Files &others);
    void closed();

private:
    QWidget *createGroupsPane();
    QWidget *createMembersPane();
    void chooseGroup(int row);
    void showGroup();
    void updateSummary();
    void askForClearing();

    DuplicateGroupsModel *m_groups;
    DuplicateMembersModel *m_members;
    QLabel *m_summary;
    QLabel *m_certainty;
    QListView *m_groupsView;
    QListView *m_membersView;
    QPushButton *m_clearButton;
    QPushButton *m_closeButton;
    int m_unread = 0;
    bool m_busy = false;
};
