#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/**
 * A drive for a test: a FAT image where the test may mount one, else a memory
 * file system, else a plain folder. Unmounted when it goes.
 */
class DriveFixture
{
public:
    enum Kind { Fat, Memory, Plain };

    explicit DriveFixture(const QString &label = QStringLiteral("STICK"))
    {
        m_path = m_directory.filePath(QStringLiteral("drive"));
        QDir().mkpath(m_path);
        if (mountFat(label))
            m_kind = Fat;
        else if (run(QStringLiteral("mount"),
                     {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                      QStringLiteral("size=2m"), QStringLiteral("none"), m_path}))
            m_kind = Memory;
    }

    ~DriveFixture() { pull(); }

    DriveFixture(const DriveFixture &) = delete;
    DriveFixture &operator=(const DriveFixture &) = delete;

    QString path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }
    bool isFat() const { return m_kind == Fat; }
    bool isMounted() const { return m_kind != Plain; }

    /** As if it were pulled out. */
    bool pull()
    {
        return isMounted() && run(QStringLiteral("umount"), {QStringLiteral("-l"), m_path});
    }

    bool remount(const QString &option)
    {
        return isMounted() &&
               run(QStringLiteral("mount"),
                   {QStringLiteral("-o"), QStringLiteral("remount,") + option, m_path});
    }

    /** For the output of the test: what it ran on. */
    const char *description() const
    {
        switch (m_kind) {
        case Fat:
            return "on a FAT image, mounted by a loop device";
        case Memory:
            return "on a memory file system, since no FAT image can be mounted here";
        default:
            return "in a plain folder, since nothing can be mounted here";
        }
    }

private:
    bool mountFat(const QString &label)
    {
        const QString image = m_directory.filePath(QStringLiteral("image"));
        QFile file(image);
        if (!file.open(QIODevice::WriteOnly) || !file.resize(2 * 1024 * 1024))
            return false;
        file.close();
        QStringList arguments{image};
        if (!label.isEmpty())
            arguments = QStringList{QStringLiteral("-n"), label, image};
        return run(QStringLiteral("mkfs.vfat"), arguments) &&
               run(QStringLiteral("mount"),
                   {QStringLiteral("-t"), QStringLiteral("vfat"), QStringLiteral("-o"),
                    QStringLiteral("loop"), image, m_path});
    }

    static bool run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"), environment.value(QStringLiteral("PATH")) +
                                                       QStringLiteral(":/sbin:/usr/sbin"));
        process.setProcessEnvironment(environment);
        process.start(
            QStringLiteral("sh"),
            QStringList{QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$@\""), program} +
                arguments);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    QTemporaryDir m_directory;
    QString m_path;
    Kind m_kind = Plain;
};
