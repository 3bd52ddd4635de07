#include "drives/DriveInfo.h"

#include "drives/VolumeSource.h"

#include <QFileInfo>
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
    drive.denied = !QFileInfo(drive.rootPath).isWritable();
    return drive;
}

DriveInfo DriveInfo::fromMount(const Mount &mount)
{
    DriveInfo drive = fromVolume(QStorageInfo(mount.path));
    drive.mount = mount;
    // It was unmounted since, and what lies below it has answered.
    drive.valid = drive.valid && drive.rootPath == mount.path;
    return drive;
}

bool DriveInfo::mightBeUsbDrive() const
{
    return !root && valid && ready && !readOnly && !denied && Volumes::isFat(fileSystemType);
}

QString DriveInfo::displayName() const
{
    return name.isEmpty() ? rootPath : name;
}

QString DriveInfo::displayText() const
{
    // One call, so that a "%1" in the label stays as it is.
    return QStringLiteral("%1 (%2)").arg(displayName(), sizeText(bytesTotal));
}

bool DriveInfo::operator==(const DriveInfo &other) const
{
    return mount == other.mount && rootPath == other.rootPath &&
           displayText() == other.displayText();
}
