#include "catalogue/folders/DirectoryModel.h"

#include "catalogue/folders/FolderLabels.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"

#include <algorithm>

static QString withSlash(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

/**
 * Takes what is @p folder or lies in it out of @p paths, in their order. Neighbours
 * whose names begin alike may stand between, wherever the language sorts them.
 */
static QStringList takeInside(const QString &folder, QStringList &paths)
{
    const auto isOutside = [&folder, inside = withSlash(folder)](const QString &path) {
        return path != folder && !path.startsWith(inside);
    };
    const auto firstInside = std::stable_partition(paths.begin(), paths.end(), isOutside);
    QStringList taken(firstInside, paths.end());
    paths.erase(firstInside, paths.end());
    return taken;
}

// No file system holds deeper trees; a catalogue from elsewhere might claim to.
static constexpr int maximumDepth = 1000;

DirectoryModel::DirectoryModel(const QSharedPointer<Project> &project)
    : m_project(project), m_folderIcon(QStringLiteral(":/icons/folder_gray.svg"))
{
}

void DirectoryModel::refresh()
{
    clear();
    m_itemsByPath.clear();
    setHorizontalHeaderLabels({tr("Directories")});
    QStringList paths = absoluteDirectoryPaths();
    QStringList folders = m_project->smartFolders();
    LocaleAwareFunctions::sort(paths);
    LocaleAwareFunctions::sort(folders);
    for (const QString &folder : std::as_const(folders)) {
        QStringList inside = takeInside(folder, paths);
        addDirectory(invisibleRootItem(), folder, takePathsOfSmartfolder(folder, inside));
    }
    const QHash<QString, QString> labels = FolderLabels::of(folders);
    for (int row = 0; row < rowCount(); ++row)
        item(row)->setText(labels.value(absoluteFilePath(index(row, 0))));
}

QStringList DirectoryModel::absoluteDirectoryPaths() const
{
    QStringList paths;
    const QList<QSharedPointer<IFile>> files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        const QString path = pathWithoutLastElement(file->absoluteFilePath());
        // Files come sorted, so that most of a directory's follow each other.
        if (paths.isEmpty() || paths.constLast() != path)
            paths.append(path);
    }
    paths.removeDuplicates();
    return paths;
}

QList<QStringList> DirectoryModel::takePathsOfSmartfolder(const QString &folder, QStringList &paths)
{
    QList<QStringList> subPaths;
    while (!paths.isEmpty() && paths.constFirst().startsWith(folder)) {
        const QString beyond = paths.takeFirst().mid(folder.length());
        const QStringList elements = beyond.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        if (!beyond.isEmpty())
            subPaths.append(elements.mid(0, maximumDepth));
    }
    return subPaths;
}

void DirectoryModel::addDirectory(QStandardItem *parent, const QString &path,
                                  const QList<QStringList> &subPaths)
{
    const QString text = lastElementOfPath(path);
    auto *item = new QStandardItem(m_folderIcon, text.isEmpty() ? path : text);
    item->setData(path, PathRole);
    parent->appendRow(item);
    m_itemsByPath.insert(path, item);

    // Names that differ only in case may alternate, so that runs alone won't do.
    QStringList names;
    QHash<QString, QList<QStringList>> groups;
    for (const QStringList &elements : subPaths) {
        if (elements.isEmpty())
            continue;
        const QString &name = elements.first();
        if (!groups.contains(name))
            names.append(name);
        QList<QStringList> &group = groups[name];
        if (elements.count() > 1)
            group.append(elements.mid(1));
    }
    for (const QString &name : std::as_const(names))
        addDirectory(item, withSlash(path) + name, groups.take(name));
}

QString DirectoryModel::absoluteFilePath(const QModelIndex &index) const
{
    return index.data(PathRole).toString();
}

QModelIndex DirectoryModel::indexForPath(const QString &path) const
{
    const QStandardItem *item = m_itemsByPath.value(path);
    return item ? item->index() : QModelIndex();
}

QString DirectoryModel::lastElementOfPath(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString DirectoryModel::pathWithoutLastElement(const QString &path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}
