#include "ui/PathOpener.h"

#include "catalogue/records/Project.h"
#include "embroidery/EmbroideryIO.h"
#include "widgets/controls/GMessageBox.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QSet>

namespace {

constexpr int MostPathsNamed = 10;

bool liesIn(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

bool isDesign(const QFileInfo &file)
{
    return file.isFile() &&
           QDir::match(Embroidery::EmbroideryIO::supportedFormats(), file.fileName());
}

QString listOf(QStringList paths)
{
    if (paths.size() > MostPathsNamed) {
        paths = paths.mid(0, MostPathsNamed);
        paths.append(QStringLiteral("..."));
    }
    return paths.join(QLatin1Char('\n'));
}

} // namespace

/** What was asked for, by what is to be done with it. Paths as the catalogue has them. */
struct PathOpener::Request
{
    QStringList designs;        ///< all of them
    QStringList unreadDesigns;  ///< in folders of the catalogue, but not in it
    QStringList folders;        ///< those that the catalogue knows
    QStringList unknownFolders; ///< those that it does not know, also of designs
    QStringList strayDesigns;   ///< those in folders that it does not know
    QStringList others;         ///< what is neither
};

PathOpener::PathOpener(QWidget *window, const QSharedPointer<Project> &project)
    : QObject(window), m_window(window), m_project(project)
{
}

void PathOpener::open(const QStringList &paths)
{
    const Request request = sort(paths);
    if (!request.others.isEmpty())
        emit remark(tr("Not a design that can be shown: %1").arg(listOf(request.others)));
    if (!request.unknownFolders.isEmpty() && wantsFolders(request))
        emit foldersWanted(request.unknownFolders);
    else if (!request.unreadDesigns.isEmpty() && wantsRescan(request))
        emit rescanWanted();

    const QList<QSharedPointer<IFile>> designs = find(request.designs);
    if (!designs.isEmpty())
        emit designsToShow(designs);
    else if (!request.folders.isEmpty())
        emit folderToShow(request.folders.constFirst());
}

PathOpener::Request PathOpener::sort(const QStringList &paths) const
{
    Request request;
    for (const QString &given : paths) {
        const QString path = asCatalogued(given);
        const QFileInfo info(path);
        if (info.isDir())
            (isSearched(path) ? request.folders : request.unknownFolders).append(path);
        else if (isDesign(info))
            request.designs.append(path);
        else
            request.others.append(path);
    }
    const QList<QSharedPointer<IFile>> known = find(request.designs);
    QSet<QString> knownPaths;
    for (const auto &file : known)
        knownPaths.insert(file->absoluteFilePath());
    for (const QString &design : qAsConst(request.designs)) {
        const QString folder = QFileInfo(design).path();
        if (knownPaths.contains(design))
            continue;
        if (isSearched(folder)) {
            request.unreadDesigns.append(design);
        } else {
            request.strayDesigns.append(design);
            request.unknownFolders.append(folder);
        }
    }
    request.unknownFolders.removeDuplicates();
    return request;
}

/** @p given as the catalogue would have it: below the smart folder that leads there. */
QString PathOpener::asCatalogued(const QString &given) const
{
    QString path = QDir::cleanPath(given).normalized(QString::NormalizationForm_C);
    if (isSearched(path))
        return path;
    const QString real = QFileInfo(given).canonicalFilePath();
    const QStringList folders = m_project->smartFolders();
    for (const QString &folder : folders) {
        const QString realFolder = QFileInfo(folder).canonicalFilePath();
        if (!realFolder.isEmpty() && liesIn(real, realFolder))
            return folder + real.mid(realFolder.size());
    }
    return QFileInfo::exists(path) ? path : QDir::cleanPath(given);
}

bool PathOpener::isSearched(const QString &folder) const
{
    const QStringList folders = m_project->smartFolders();
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString &root) { return liesIn(folder, root); });
}

QList<QSharedPointer<IFile>> PathOpener::find(const QStringList &paths) const
{
    QList<QSharedPointer<IFile>> found;
    if (paths.isEmpty())
        return found;
    const QSet<QString> wanted(paths.begin(), paths.end());
    const auto files = m_project->files();
    std::copy_if(files.begin(), files.end(), std::back_inserter(found),
                 [&](const auto &file) { return wanted.contains(file->absoluteFilePath()); });
    return found;
}

bool PathOpener::wantsFolders(const Request &request)
{
    const QStringList &folders = request.unknownFolders;
    const QStringList &designs = request.strayDesigns;
    const bool isOneDesign = designs.size() == 1 && folders.size() == 1 &&
                             folders.constFirst() == QFileInfo(designs.constFirst()).path();
    GMessageBox question(GMessageBox::Question, m_window,
                         isOneDesign
                             ? tr("Add the folder of '%1' to your collection?")
                                   .arg(QFileInfo(designs.constFirst()).fileName())
                             : tr("Add %n folder(s) to your collection?", nullptr, folders.size()),
                         listOf(folders));
    question.button(QMessageBox::Yes)->setText(tr("Add folder"));
    question.button(QMessageBox::No)->setText(tr("Cancel"));
    question.setDefaultButton(QMessageBox::Yes);
    return question.exec() == QMessageBox::Yes;
}

bool PathOpener::wantsRescan(const Request &request)
{
    GMessageBox question(GMessageBox::Question, m_window,
                         tr("%n design(s) were not read yet. Rescan the folders?", nullptr,
                            request.unreadDesigns.size()),
                         listOf(request.unreadDesigns));
    question.button(QMessageBox::Yes)->setText(tr("Rescan"));
    question.button(QMessageBox::No)->setText(tr("Cancel"));
    question.setDefaultButton(QMessageBox::Yes);
    return question.exec() == QMessageBox::Yes;
}
