#include "drives/VolumeSource.h"

#include <algorithm>
#include <QFile>
#include <QStringList>

#ifdef Q_OS_LINUX
#include <sys/sysmacros.h>
#endif

namespace {

bool isBootPlace(const QString &path)
{
    const QStringList places{QStringLiteral("/boot"), QStringLiteral("/efi")};
    return std::any_of(places.begin(), places.end(), [&path](const QString &place) {
        return path == place || path.startsWith(place + QLatin1Char('/'));
    });
}

/** Whether the table of partitions, of either kind, calls @p device an EFI system partition. */
bool isEfiSystemPartition(quint64 device, const QString &deviceFacts)
{
#ifdef Q_OS_LINUX
    QFile facts(QStringLiteral("%1/b%2:%3").arg(deviceFacts).arg(major(device)).arg(minor(device)));
    if (!facts.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = facts.readAll().split('\n');
    return lines.contains("E:ID_PART_ENTRY_TYPE=c12a7328-f81f-11d2-ba4b-00a0c93ec93b") ||
           lines.contains("E:ID_PART_ENTRY_TYPE=0xef");
#else
    Q_UNUSED(device)
    Q_UNUSED(deviceFacts)
    return false;
#endif
}

} // namespace

bool Volumes::isFat(const QString &fileSystemType)
{
    return fileSystemType.contains(QLatin1String("fat"), Qt::CaseInsensitive) ||
           fileSystemType.contains(QLatin1String("msdos"), Qt::CaseInsensitive);
}

bool Volumes::mayBeDrive(const Mount &mount, const QString &deviceFacts)
{
    return isFat(mount.fileSystemType) && !isBootPlace(mount.path) &&
           !isEfiSystemPartition(mount.device, deviceFacts);
}

QList<Mount> Volumes::mounted()
{
    QList<Mount> volumes;
    const QList<Mount> mounts = MountTable::mounts();
    for (const Mount &mount : mounts) {
        if (mayBeDrive(mount))
            volumes.append(mount);
    }
    return volumes;
}
