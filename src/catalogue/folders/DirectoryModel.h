#pragma once

#include "widgets/style/GIcon.h"

#include <QHash>
#include <QList>
#include <QSharedPointer>
#include <QStandardItemModel>
#include <QStringList>

class Project;

/**
 * The smart folders and the directories of the known designs as a tree. Items show
 * the last element of their path, smart folders of one name also what tells them apart,
 * and hold the whole path under PathRole.
 */
class DirectoryModel : public QStandardItemModel
{
    Q_OBJECT

public:
    static constexpr int PathRole = Qt::UserRole + 1;

    explicit DirectoryModel(const QSharedPointer<Project> &project);

    /** Builds the tree anew from the catalogue. */
    void refresh();

    /** The directory of every design, each once. */
    QStringList absoluteDirectoryPaths() const;

    /**
     * Takes the paths at the front of @p paths that begin with @p folder and returns
     * what they have beyond it, split at "/". Both come sorted.
     */
    static QList<QStringList> takePathsOfSmartfolder(const QString &folder, QStringList &paths);

    /** Adds @p path below @p parent, and below that the tree of @p subPaths, which are sorted. */
    void addDirectory(QStandardItem *parent, const QString &path,
                      const QList<QStringList> &subPaths);

    QString absoluteFilePath(const QModelIndex &index) const;

    /** An invalid index for a path that isn't in the tree. */
    QModelIndex indexForPath(const QString &path) const;

    /** The text behind the last "/". */
    static QString lastElementOfPath(const QString &path);

    /** The text before the last "/". */
    static QString pathWithoutLastElement(const QString &path);

private:
    QSharedPointer<Project> m_project;
    GIcon m_folderIcon;
    QHash<QString, QStandardItem *> m_itemsByPath;
};
