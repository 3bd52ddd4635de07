#include "online/BreakpadCrashHandler.h"

#include "app/addons/GApplicationAddons.h"
#include "base/GDebug.h"
#include "online/CrashReportWriter.h"
#include "online/services/SystemInquiry.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

QByteArray reportHead()
{
    const QString text =
        QStringLiteral("Process: %1 [%2]\nVersion: %3\nBuild date: %4\nSystem: %5, %6\nQt: %7\n"
                       "Started: %8\n")
            .arg(QCoreApplication::applicationName())
            .arg(QCoreApplication::applicationPid())
            .arg(QCoreApplication::applicationVersion(),
                 GApplicationAddons::buildDate().toString(Qt::ISODate),
                 theSystemInquiry()->osString(), QSysInfo::currentCpuArchitecture(),
                 QString::fromLatin1(qVersion()),
                 QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    return text.toUtf8();
}

QString reportFile()
{
    return QStringLiteral("%1/%2-%3-%4.crash")
        .arg(BreakpadCrashHandler::crashLogPath(), QCoreApplication::applicationName(),
             QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss")))
        .arg(QCoreApplication::applicationPid());
}

} // namespace

QString BreakpadCrashHandler::crashLogPath()
{
    return QDir::tempPath() + QLatin1Char('/') + QCoreApplication::applicationName().toLower() +
           QStringLiteral("-crashlogs");
}

#ifdef Q_OS_LINUX

void BreakpadCrashHandler::install()
{
    const QByteArray folder = QFile::encodeName(crashLogPath());
    mkdir(folder.constData(), S_IRWXU);
    if (!ownsCrashLogPath()) {
        gWarning("BreakpadCrashHandler") << "No crash logs: the folder for them is not ours.";
        return;
    }
    CrashReportWriter::install(QFile::encodeName(reportFile()), reportHead());
}

bool BreakpadCrashHandler::ownsCrashLogPath()
{
    struct stat info;
    if (lstat(QFile::encodeName(crashLogPath()).constData(), &info) != 0)
        return false;
    return S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
           (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

#else

void BreakpadCrashHandler::install() {}

bool BreakpadCrashHandler::ownsCrashLogPath()
{
    return QFileInfo(crashLogPath()).isDir();
}

#endif
