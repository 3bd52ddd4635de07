#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"
#include "catalogue/records/IFile.h"

#include <QAbstractListModel>
#include <QList>
#include <QSharedPointer>
#include <QStringList>

/** The groups that were found, a row each. */
class DuplicateGroupsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using Files = QList<QSharedPointer<IFile>>;

    explicit DuplicateGroupsModel(QObject *parent = nullptr);

    /** @param files what the numbers in @p groups stand for */
    void setGroups(const QVector<DuplicateGroup> &groups, const Files &files);

    /** Files that have gone leave their groups, which stay as long as two are left. */
    void removeFiles(const QStringList &paths);

    Files filesAt(int row) const { return m_groups.at(row).files; }
    DuplicateGroup::Likeness likenessAt(int row) const { return m_groups.at(row).likeness; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Group
    {
        DuplicateGroup::Likeness likeness;
        Files files;
    };

    QVector<Group> m_groups;
};
