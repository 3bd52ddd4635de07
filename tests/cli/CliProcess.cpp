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
    return QDir::cleanPath(m_root.filePath("work/") + name);
}

QString CliProcess::dataPath(const QString &name) const
{
    return QDir::cleanPath(m_root.filePath("data/") + QLatin1String(BuildConfig::Organisation) +
                           "/Hoopline Organizer/" + name);
}

bool CliProcess::start(QProcess &process, const QStringList &arguments,
                       const QString &program) const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("HOME", m_root.path());
    environment.insert("TMPDIR", temporaryPath());
    environment.insert("XDG_CONFIG_HOME", m_root.filePath("config"));
    environment.insert("XDG_DATA_HOME", m_root.filePath("data"));
    environment.insert("XDG_CACHE_HOME", m_root.filePath("cache"));
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
