#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

/** A message bus for the test alone. It starts no service, so that no installed one answers. */
class PrivateBus
{
public:
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    /** @param type "session" or "system"; false where there is no daemon for it. */
    bool start(const QByteArray &type)
    {
        QFile file(m_directory.filePath("bus.conf"));
        if (!file.open(QIODevice::WriteOnly))
            return false;
        file.write("<busconfig><type>" + type +
                   "</type><listen>unix:tmpdir=/tmp</listen>"
                   "<policy context='default'><allow send_destination='*' eavesdrop='true'/>"
                   "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>");
        file.close();
        m_daemon.start(QStandardPaths::findExecutable("dbus-daemon"),
                       {"--config-file=" + file.fileName(), "--nofork", "--print-address"});
        if (!m_daemon.waitForReadyRead())
            return false;
        qputenv("DBUS_" + type.toUpper() + "_BUS_ADDRESS", m_daemon.readLine().trimmed());
        return true;
    }

private:
    QTemporaryDir m_directory;
    QProcess m_daemon;
};
