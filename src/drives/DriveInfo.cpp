#include "ui/DriveInfo.h"

#include <QStorageInfo>

namespace {

constexpr qint64 BytesPerMegabyte = 1048576;
constexpr qint64 MegabytesPerGigabyte = 1024;

QString sizeText(qint64 bytes)
{
    const qint64 megabytes = bytes / BytesPerMegabyte;
    if (megabytes < MegabytesPerGigabyte)
        return QStringLiteral("%1 MB").arg(megabytes);
    return QStringLiteral("%1 GB").arg(megabytes / MegabytesPerGigabyte);
}

} // namespace

DriveInfo DriveInfo::fromVolume(const QStorageInfo &volume)
{
    DriveInfo drive;
    drive.fileSystemType = QString::fromLatin1(volume.fileSystemType());
    drive.name = volume.name();
    drive.rootPath = volume.rootPath();
    drive.bytesTotal = volume.bytesTotal();
    drive.root = volume == QStorageInfo::root();
    drive.valid = volume.isValid();
    drive.ready = volume.isReady();
    drive.readOnly = volume.isReadOnly();
    return drive;
}

bool DriveInfo::mightBeUsbDrive() const
{
    if (root || !valid || !ready || readOnly)
        return false;
    const QString type = fileSystemType.toLower();
    return type.contains(QLatin1String("fat")) || type.contains(QLatin1String("msdos"));
}

QString DriveInfo::displayText() const
{
    // One call, so that a "%1" in the label stays as it is.
    return QStringLiteral("%1 (%2)").arg(name.isEmpty() ? rootPath : name, sizeText(bytesTotal));
}
