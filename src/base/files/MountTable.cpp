#include "base/files/MountTable.h"

#include <QFile>
#include <QHash>
#include <QStorageInfo>

#ifdef Q_OS_LINUX
#include <sys/sysmacros.h>
#endif

namespace {

// The fields of a line up to the dash, and those behind it.
enum Field { Id = 0, Device = 2, Path = 4 };
enum FieldBehindDash { Type = 1, Source = 2 };
constexpr int FirstOptionalField = 6;

/** Blanks, line ends and backslashes stand in the table as three octal digits. */
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (int i = 0; i < field.size(); ++i) {
        bool octal = false;
        const uint code = field[i] == '\\' ? field.mid(i + 1, 3).toUInt(&octal, 8) : 0;
        text += octal ? char(code) : field[i];
        i += octal ? 3 : 0;
    }
    return text;
}

quint64 deviceNumber(const QByteArray &text)
{
#ifdef Q_OS_LINUX
    const QList<QByteArray> parts = text.split(':');
    return parts.size() == 2 ? makedev(parts.first().toUInt(), parts.last().toUInt()) : 0;
#else
    Q_UNUSED(text)
    return 0;
#endif
}

QList<Mount> withoutHidden(const QList<Mount> &mounts)
{
    QHash<QString, int> uppermost;
    for (int i = 0; i < mounts.size(); ++i)
        uppermost.insert(mounts[i].path, i);
    QList<Mount> visible;
    for (int i = 0; i < mounts.size(); ++i) {
        if (uppermost.value(mounts[i].path) == i)
            visible.append(mounts[i]);
    }
    return visible;
}

bool isInside(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/") ||
           (path.startsWith(folder) && path.at(folder.size()) == QLatin1Char('/'));
}

} // namespace

bool Mount::operator==(const Mount &other) const
{
    return id == other.id && device == other.device && path == other.path &&
           source == other.source && fileSystemType == other.fileSystemType;
}

QList<Mount> MountTable::mounts()
{
#ifdef Q_OS_LINUX
    QFile table(QStringLiteral("/proc/self/mountinfo"));
    return table.open(QIODevice::ReadOnly) ? parse(table.readAll()) : QList<Mount>();
#else
    QList<Mount> mounts;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes) {
        Mount mount;
        mount.path = volume.rootPath();
        mount.fileSystemType = QString::fromLatin1(volume.fileSystemType());
        mount.source = QString::fromLocal8Bit(volume.device());
        mounts.append(mount);
    }
    return mounts;
#endif
}

QList<Mount> MountTable::parse(const QByteArray &table)
{
    QList<Mount> mounts;
    const QList<QByteArray> lines = table.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        const int dash = fields.indexOf("-", FirstOptionalField);
        if (dash < 0 || dash + Source >= fields.size())
            continue;
        Mount mount;
        mount.id = fields[Id].toULongLong();
        mount.device = deviceNumber(fields[Device]);
        mount.path = QFile::decodeName(unescaped(fields[Path]));
        mount.fileSystemType = QString::fromLatin1(unescaped(fields[dash + Type]));
        mount.source = QFile::decodeName(unescaped(fields[dash + Source]));
        mounts.append(mount);
    }
    return withoutHidden(mounts);
}

Mount MountTable::holding(const QString &path, const QList<Mount> &mounts)
{
    Mount holder;
    for (const Mount &mount : mounts) {
        if (isInside(path, mount.path) && mount.path.size() >= holder.path.size())
            holder = mount;
    }
    return holder;
}
