#include "online/GCrashLogCollector.h"

#include "base/GSettings.h"
#include "online/LocalCrashLogs.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

namespace {

// Our own logs have a few kilobytes; a larger file is not worth sending.
constexpr qint64 MaxLogSize = qint64(1024) * 1024;

// A frame of the backtrace begins with the path of the program or a library,
// which tells where the user installed it, and often the user's name; the
// file's own name is all that a report needs.
QString withoutFolders(QString text)
{
    static const QRegularExpression folders(
        QStringLiteral("^.*/(?=[^/\\n]*\\(.*\\)\\s*\\[0x[0-9a-f]+\\]$)"),
        QRegularExpression::MultilineOption);
    return text.remove(folders);
}

} // namespace

QStringList GCrashLogCollectorImpl::collectLogs(const QDir &directory, const QDateTime &since) const
{
    QStringList logs;
    const QString pattern = QCoreApplication::applicationName() + QStringLiteral("*.crash");
    const QFileInfoList files =
        directory.entryInfoList({pattern}, QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (info.lastModified() < since || !file.open(QIODevice::ReadOnly))
            continue;
        logs.append(withoutFolders(QString::fromUtf8(file.read(MaxLogSize))));
    }
    return logs;
}

GCrashLogCollector::GCrashLogCollector() : m_impl(std::make_unique<LocalCrashLogs>()) {}

GCrashLogCollector::~GCrashLogCollector() = default;

QStringList GCrashLogCollector::logsSince(const QDateTime &since) const
{
    return m_impl->logsSince(since);
}

QStringList GCrashLogCollector::logsSinceLastCheck() const
{
    const QDateTime now = QDateTime::currentDateTime();
    GSettings settings;
    QStringList logs = logsSince(settings.crashLoggerLastCheck());
    settings.setCrashLoggerLastCheck(now);
    return logs;
}
