#pragma once

#include "base/BuildConfig.h"
#include "base/InstanceName.h"

#include <QDir>
#include <QSharedMemory>
#include <QSystemSemaphore>
#include <QTemporaryDir>

/**
 * The folder for temporary files of processes behind the single-instance guard, and of the test
 * itself, while it lives: short, since a socket lies in it.
 */
class GuardFolder : public QTemporaryDir
{
public:
    GuardFolder() : QTemporaryDir(QDir::tempPath() + "/XXXXXX"), m_before(qgetenv("TMPDIR"))
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
        name.applicationName = "Hoopline Organizer";
        name.organisationName = QString::fromLatin1(BuildConfig::Organisation);
        name.userName = InstanceName::currentUser();
        return name.toString();
    }

private:
    QByteArray m_before;
};
