#include "online/services/LinuxSystemInquiry.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QFile>
#include <sys/utsname.h>
#include <unistd.h>

namespace {

constexpr qint64 BytesPerMegabyte = qint64(1024) * 1024;
// A few lines by nature; what is larger is something else.
constexpr qint64 MaxOsReleaseSize = qint64(64) * 1024;

QString unquoted(QString value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\''));
    return quoted ? value.mid(1, value.size() - 2) : value;
}

QByteArray osRelease()
{
    // The order in which the format's own description says to look.
    for (const QString &path :
         {QStringLiteral("/etc/os-release"), QStringLiteral("/usr/lib/os-release")}) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            return file.read(MaxOsReleaseSize);
    }
    return QByteArray();
}

QString osReleaseValue(const QByteArray &text, const QByteArray &key)
{
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(key + '='))
            return unquoted(QString::fromUtf8(line.mid(key.size() + 1).trimmed()));
    }
    return QString();
}

} // namespace

QStringList LinuxSystemInquiry::userMailAddresses() const
{
    const QString address = qEnvironmentVariable("EMAIL");
    return address.contains(QLatin1Char('@')) ? QStringList(address) : QStringList();
}

QString LinuxSystemInquiry::osName() const
{
    return QStringLiteral("Linux");
}

QString LinuxSystemInquiry::osType() const
{
    return QStringLiteral("Linux");
}

QString LinuxSystemInquiry::osVersion() const
{
    const QByteArray text = osRelease();
    const QString id = osReleaseValue(text, "ID");
    const QString version = osReleaseValue(text, "VERSION_ID");
    if (!id.isEmpty())
        return version.isEmpty() ? id : id + QLatin1Char(' ') + version;
    utsname kernel;
    return uname(&kernel) == 0 ? QString::fromLocal8Bit(kernel.release) : QStringLiteral("unknown");
}

int LinuxSystemInquiry::systemMemoryMB() const
{
    const qint64 pages = sysconf(_SC_PHYS_PAGES);
    const qint64 pageSize = sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0 ? int(pages * pageSize / BytesPerMegabyte) : 0;
}

#endif
