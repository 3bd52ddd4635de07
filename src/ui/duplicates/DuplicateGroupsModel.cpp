#include "ui/duplicates/DuplicateGroupsModel.h"

#include "ui/duplicates/DuplicateTexts.h"

#include <algorithm>
#include <QFileInfo>
#include <QSet>

DuplicateGroupsModel::DuplicateGroupsModel(QObject *parent) : QAbstractListModel(parent) {}

void DuplicateGroupsModel::setGroups(const QVector<DuplicateGroup> &groups, const Files &files)
{
    beginResetModel();
    m_groups.clear();
    m_groups.reserve(groups.size());
    for (const DuplicateGroup &group : groups) {
        m_groups.append(Group{group.likeness, Files()});
        for (int member : group.members)
            m_groups.last().files.append(files.at(member));
    }
    endResetModel();
}

void DuplicateGroupsModel::removeFiles(const QStringList &paths)
{
    const QSet<QString> gone(paths.begin(), paths.end());
    for (int row = m_groups.size() - 1; row >= 0; --row) {
        Files &files = m_groups[row].files;
        const auto left = std::remove_if(files.begin(), files.end(), [&](const auto &file) {
            return gone.contains(file->absoluteFilePath());
        });
        if (left == files.end())
            continue;
        files.erase(left, files.end());
        if (files.size() > 1) {
            emit dataChanged(index(row), index(row));
            continue;
        }
        beginRemoveRows(QModelIndex(), row, row);
        m_groups.removeAt(row);
        endRemoveRows();
    }
}

int DuplicateGroupsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_groups.size();
}

QVariant DuplicateGroupsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Group &group = m_groups.at(index.row());
    const QString name = QFileInfo(group.files.first()->absoluteFilePath()).completeBaseName();
    return DuplicateTexts::singleLine(name) + QLatin1Char('\n') +
           tr("%n file(s), %1", nullptr, group.files.size())
               .arg(DuplicateTexts::likeness(group.likeness));
}
