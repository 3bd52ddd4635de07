#include "cli/ScanRehearsal.h"

#include "base/Error.h"
#include "base/files/DirectoryScanner.h"
#include "base/files/FileTools.h"
#include "base/GlobalSettings.h"
#include "catalogue/sync/FileSync.h"
#include "cli/ExitStatus.h"
#include "cli/SmartFolderCheck.h"
#include "embroidery/EmbroideryIO.h"
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

ScanRehearsal::ScanRehearsal(const QStringList &folders, bool asJson)
    : m_folders(folders), m_output(asJson)
{
}

int ScanRehearsal::run(bool prune)
{
    loadCatalogue();
    if (!prune)
        SmartFolderCheck::expectAll(*m_controller.project());

    const auto files = m_controller.project()->files();
    for (const File &file : files)
        m_vanished.insert(file->absoluteFilePath(), file);
    QStringList fresh;
    const QStringList found = designsOnDisk();
    for (const QString &path : found) {
        const File known = m_vanished.take(path);
        if (!known)
            fresh.append(path);
        else if (!isUnchanged(*known))
            judge(path, "update", m_counts.updated);
    }
    for (const File &file : qAsConst(m_vanished))
        m_vanishedBySize.insert(file->fileSize(), file);
    for (const QString &path : qAsConst(fresh)) {
        const File twin = takeVanishedTwin(path);
        if (!twin) {
            judge(path, "add", m_counts.added);
            continue;
        }
        m_vanished.remove(twin->absoluteFilePath());
        m_output.tellFile("move", twin->absoluteFilePath(), path);
        ++m_counts.reconnected;
    }
    for (const File &file : qAsConst(m_vanished))
        m_output.tellFile("remove", file->absoluteFilePath());
    m_counts.removed = m_vanished.size();
    m_output.tellPlan(m_counts);
    return m_output.flush() ? Success : Failure;
}

void ScanRehearsal::loadCatalogue()
{
    try {
        m_controller.loadProject();
    } catch (const ErrorDoesNotExist &) {
        // Before the first scan; the project is empty.
    }
}

QStringList ScanRehearsal::designsOnDisk() const
{
    const QStringList folders = ProjectController::sortAndRemoveSubdirectories(
        m_controller.project()->smartFolders() + m_folders);
    const QStringList formats = Embroidery::EmbroideryIO::supportedFormats();
    QStringList designs;
    for (const QString &folder : folders) {
        const QStringList files = DirectoryScanner().findFilesRecursive(folder);
        for (const QString &path : files) {
            if (QDir::match(formats, path.mid(path.lastIndexOf(QLatin1Char('/')) + 1)))
                designs.append(path);
        }
    }
    designs.removeDuplicates();
    return designs;
}

void ScanRehearsal::judge(const QString &path, const char *what, int &count)
{
    const bool readable = QFileInfo(path).isReadable();
    m_output.tellFile(readable ? what : "unreadable", path);
    ++(readable ? count : m_counts.unreadable);
}

bool ScanRehearsal::isUnchanged(const IFile &file) const
{
    const QFileInfo onDisk(file.absoluteFilePath());
    const QByteArray hash = file.contentHash();
    return onDisk.lastModified().toSecsSinceEpoch() == file.modificationDate() &&
           onDisk.size() == file.fileSize() && !hash.isEmpty() &&
           QFile::exists(GlobalSettings().previewImagePath(hash));
}

ScanRehearsal::File ScanRehearsal::takeVanishedTwin(const QString &path)
{
    const int size = int(QFileInfo(path).size());
    const auto candidates = m_vanishedBySize.values(size);
    if (candidates.isEmpty())
        return {};
    QByteArray hash;
    try {
        hash = FileSync::calculateContentHash(FileTools::readAll(path));
    } catch (const Error &) {
        return {};
    }
    for (const File &candidate : candidates) {
        if (candidate->contentHash() == hash) {
            m_vanishedBySize.remove(size, candidate);
            return candidate;
        }
    }
    return {};
}
