#pragma once

#include "base/files/MountTable.h"
#include "drives/VolumeSource.h"

#include <csignal>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

/**
 * A drive for a test: a FAT image where the test may mount one, by the kernel or by a driver
 * beside it, else a memory file system, else a plain folder. Unmounted when it goes. Where the
 * system lets it, the test sees its mounts alone.
 */
class DriveFixture
{
public:
    enum Wanted {
        BestThereIs,
        InMemory,       ///< a driver that tells each failure by its own number
        RoomForTwoFiles ///< as above, with space left
    };

    explicit DriveFixture(Wanted wanted = BestThereIs)
    {
        keepMountsToThisProcess();
        m_path = m_directory.filePath("drive");
        QDir().mkpath(m_path);
        if (wanted != BestThereIs)
            mountMemory(wanted == InMemory ? 0 : 3);
        else
            mountBest();
        m_mount = mountNow();
    }

    ~DriveFixture()
    {
        resume();
        pull();
        m_driver.waitForFinished(1000);
    }

    DriveFixture(const DriveFixture &) = delete;
    DriveFixture &operator=(const DriveFixture &) = delete;

    QString path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + QLatin1Char('/') + name; }
    QStringList files() const { return QDir(m_path).entryList(QDir::Files | QDir::Hidden); }
    bool isFat() const { return m_kind == Fat || m_kind == FuseFat; }
    bool isMounted() const { return m_kind != Plain; }
    /** As of the beginning; an empty one where nothing could be mounted. */
    Mount mount() const { return m_mount; }

    /** Those of \a drives that are mounted, for whoever looks for drives. */
    static VolumeSource volumes(const QList<const DriveFixture *> &drives)
    {
        return [drives] {
            QList<Mount> mounts;
            for (const DriveFixture *drive : drives) {
                if (drive->isMounted())
                    mounts.append(drive->mountNow());
            }
            return mounts;
        };
    }

    /** As if it were pulled out. */
    bool pull()
    {
        if (!isMounted() || !run("umount", {"-l", m_path}))
            return false;
        m_kind = Plain;
        return true;
    }

    /** As if its lock were set. */
    bool protect() { return isMounted() && run("mount", {"-i", "-o", "remount,bind,ro", m_path}); }

    /** Lets it answer no question until resume(); false where that cannot be. */
    bool hang()
    {
        const auto driver = id_t(m_driver.processId());
        // Until the last of its threads has stopped it may answer.
        siginfo_t stopped;
        return m_kind == FuseFat && ::kill(pid_t(driver), SIGSTOP) == 0 &&
               ::waitid(P_PID, driver, &stopped, WSTOPPED | WNOWAIT) == 0;
    }
    void resume()
    {
        if (m_driver.state() == QProcess::Running)
            ::kill(pid_t(m_driver.processId()), SIGCONT);
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
            return "on a memory file system";
        default:
            return "in a plain folder, since nothing can be mounted here";
        }
    }

private:
    enum Kind { Fat, FuseFat, Memory, Plain };

    /** A drive that hangs would hold up everybody else who looks at the drives. */
    static void keepMountsToThisProcess()
    {
        static const bool alone = ::unshare(CLONE_NEWNS) == 0 &&
                                  ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        Q_UNUSED(alone)
    }

    /** What lies in memory below /dev counts as no drive. */
    static QString mountFolder()
    {
        return qEnvironmentVariable("HOOPLINE_TEST_MOUNTS", QDir::tempPath());
    }

    static bool createImage(const QString &image)
    {
        QFile file(image);
        return file.open(QIODevice::WriteOnly) && file.resize(2 * 1024 * 1024) &&
               run("mkfs.vfat", {image});
    }

    void mountBest()
    {
        const QString image = m_directory.filePath("image");
        const bool formatted = createImage(image);
        if (formatted && run("mount", {"-t", "vfat", "-o", "loop", image, m_path}))
            m_kind = Fat;
        else if (formatted && startDriver(image))
            m_kind = FuseFat;
        else
            mountMemory(0);
    }

    /** \a entries: at most so many, the folder itself included; 0 for no bound. */
    void mountMemory(int entries)
    {
        const QString options = QStringLiteral("size=2m,nr_inodes=%1").arg(entries);
        if (run("mount", {"-t", "tmpfs", "-o", options, "none", m_path}))
            m_kind = Memory;
    }

    bool startDriver(const QString &image)
    {
        m_driver.setStandardOutputFile(QProcess::nullDevice());
        m_driver.setStandardErrorFile(QProcess::nullDevice());
        m_driver.start("fusefat", {"-f", "-o", "rw+", image, m_path});
        // What is not known to run is not resumed.
        if (!m_driver.waitForStarted())
            return false;
        QDeadlineTimer patience(2000);
        while (m_driver.state() != QProcess::NotRunning && !patience.hasExpired()) {
            if (mountNow().path == m_path)
                return true;
            m_driver.waitForFinished(5);
        }
        m_driver.kill();
        return false;
    }

    Mount mountNow() const
    {
        const Mount mount = MountTable::holding(m_path, MountTable::mounts());
        return mount.path == m_path ? mount : Mount();
    }

    static bool run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", environment.value("PATH") + ":/sbin:/usr/sbin");
        process.setProcessEnvironment(environment);
        process.start("sh", QStringList{"-c", "exec \"$0\" \"$@\"", program} + arguments);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    QTemporaryDir m_directory{mountFolder() + "/XXXXXX"};
    QString m_path;
    QProcess m_driver;
    Kind m_kind = Plain;
    Mount m_mount;
};
