#include "CliProcess.h"

#include "base/BuildConfig.h"
#include <QDir>
#include <QProcessEnvironment>

CliProcess::CliProcess()
{
    QDir root(m_root.path());
    for (const char *name : {"work", "tmp", "config", "data", "cache"})
        root.mkpath(QLatin1String(name));
}

QString CliProcess::workPath(const QString &name) const
{
    return QDir::cleanPath(m_root.filePath(QStringLiteral("work/")) + name);
}

QString CliProcess::dataPath(const QString &name) const
{
    return QDir::cleanPath(m_root.filePath(QStringLiteral("data/")) +
                           QLatin1String(BuildConfig::Organisation) +
                           QStringLiteral("/Hoopline Organizer/") + name);
}

bool CliProcess::start(QProcess &process, const QStringList &arguments,
                       const QString &program) const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("HOME"), m_root.path());
    environment.insert(QStringLiteral("TMPDIR"), temporaryPath());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_root.filePath("config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_root.filePath("data"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_root.filePath("cache"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workPath());
    process.start(program, arguments);
    return process.waitForStarted();
}

CliProcess::Result CliProcess::finish(QProcess &process)
{
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.error = process.readAllStandardError();
    return result;
}

CliProcess::Result CliProcess::run(const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    if (!start(process, arguments))
        return {};
    process.write(input);
    process.closeWriteChannel();
    return finish(process);
}
