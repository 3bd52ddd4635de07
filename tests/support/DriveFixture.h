#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/**
 * A drive for a test: a FAT image where the test may mount one, by the kernel or by a driver
 * beside it, else a memory file system, else a plain folder. Unmounted when it goes.
 */
class DriveFixture
{
public:
    DriveFixture()
        : m_directory(qEnvironmentVariable("HOOPLINE_TEST_MOUNTS", QDir::tempPath()) +
                      QStringLiteral("/drive-XXXXXX"))
    {
        m_path = m_directory.filePath(QStringLiteral("drive"));
        QDir().mkpath(m_path);
        const QString image = m_directory.filePath(QStringLiteral("image"));
        const bool formatted = createImage(image);
        if (formatted && run(QStringLiteral("mount"),
                             {QStringLiteral("-t"), QStringLiteral("vfat"), QStringLiteral("-o"),
                              QStringLiteral("loop"), image, m_path}))
            m_kind = Fat;
        else if (formatted && run(QStringLiteral("fusefat"),
                                  {QStringLiteral("-o"), QStringLiteral("rw+"), image, m_path}))
            m_kind = FuseFat;
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
    QStringList files() const { return QDir(m_path).entryList(QDir::Files); }
    bool isFat() const { return m_kind == Fat || m_kind == FuseFat; }
    bool isMounted() const { return m_kind != Plain; }

    /** As if it were pulled out. */
    bool pull()
    {
        if (!isMounted() || !run(QStringLiteral("umount"), {QStringLiteral("-l"), m_path}))
            return false;
        m_kind = Plain;
        return true;
    }

    /** As if its lock were set. */
    bool protect()
    {
        return isMounted() &&
               run(QStringLiteral("mount"), {QStringLiteral("-i"), QStringLiteral("-o"),
                                             QStringLiteral("remount,bind,ro"), m_path});
    }

    /** For the output of the test: what it ran on. */
    const char *description() const
    {
        switch (m_kind) {
        case Fat:
            return "on a FAT image, mounted by a loop device";
        case FuseFat:
            return "on a FAT image, mounted by a driver outside the kernel";
        case Memory:
            return "on a memory file system, since no FAT image can be mounted here";
        default:
            return "in a plain folder, since nothing can be mounted here";
        }
    }

private:
    enum Kind { Fat, FuseFat, Memory, Plain };

    static bool createImage(const QString &image)
    {
        QFile file(image);
        return file.open(QIODevice::WriteOnly) && file.resize(2 * 1024 * 1024) &&
               run(QStringLiteral("mkfs.vfat"), {image});
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
