#pragma once

#include "base/BuildConfig.h"
#include "base/InstanceName.h"

#include <QFileInfo>
#include <QSharedMemory>
#include <QSystemSemaphore>
#include <QTemporaryDir>

/**
 * The folder for temporary files of processes behind the single-instance guard, and of the test
 * itself, while it lives. The keys of their shared memory are made of the last 16 bits of the
 * inodes of files in it. A file system on disk gives the same few numbers out again and again, so
 * that programs in different folders would take each other for their primary; one in memory
 * counts on.
 */
class GuardFolder : public QTemporaryDir
{
public:
    GuardFolder()
        : QTemporaryDir(base() + QStringLiteral("/hl-XXXXXX")), m_before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", path().toLocal8Bit());
    }

    ~GuardFolder()
    {
        // What a killed process leaves in the kernel would stay there until the next boot.
        QSharedMemory(serverName()).attach();
        QSystemSemaphore(serverName(), 1, QSystemSemaphore::Create);
        qputenv("TMPDIR", m_before);
    }

    /** The name by which the organiser's processes find each other. */
    static QString serverName()
    {
        InstanceName name;
        name.applicationName = QStringLiteral("Hoopline Organizer");
        name.organisationName = QString::fromLatin1(BuildConfig::Organisation);
        name.userName = InstanceName::currentUser();
        return name.toString();
    }

private:
    static QString base()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return QFileInfo(memory).isWritable() ? memory : QStringLiteral("/tmp");
    }

    QByteArray m_before;
};
