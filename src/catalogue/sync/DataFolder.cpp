#include "catalogue/sync/DataFolder.h"

#include "base/files/FileReplacement.h"
#include "base/files/FileStamp.h"
#include "base/files/PrivateAccess.h"
#include "catalogue/records/CatalogueErrors.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

void DataFolder::prepare(const QString &path)
{
    if (FileStamp::isMissing(path)) {
        requireDrive(path);
        PrivateAccess::makeFolder(path);
        return;
    }
    PrivateAccess::takeFromOthers(path);
    const QFileInfoList catalogues =
        QDir(path).entryInfoList({QStringLiteral("hoopline-organizer*.xml")}, QDir::Files);
    for (const QFileInfo &file : catalogues) {
        PrivateAccess::takeFromOthers(file.filePath());
        // Beside the file that a link leads to are the leftovers of its writers.
        if (file.isSymLink())
            FileReplacement::removeLeftovers(QFileInfo(file.symLinkTarget()).path());
    }
    FileReplacement::removeLeftovers(path);
}

void DataFolder::requireDrive(const QString &path)
{
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString folder = QDir::cleanPath(path);
    if (folder != QDir::cleanPath(usual) && FileStamp::isMissing(QFileInfo(folder).path()))
        throw CatalogueFolderMissingError(
            tr("The folder of the catalogue, '%1', is not there. Is its drive plugged in?")
                .arg(QDir::toNativeSeparators(path)));
}
