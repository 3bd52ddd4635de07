#pragma once

#include "base/InstanceName.h"

#include <QProcess>
#include <QStringList>

/** A start of the program behind the guard, which tells on stdout what happens to it. */
class GuardedProcess : public QProcess
{
public:
    static constexpr int Patience = 60000;

    explicit GuardedProcess(const QStringList &arguments = {})
    {
        start(QStringLiteral(GUARDED_PROGRAM), arguments);
    }

    /** Ends it in good order. */
    ~GuardedProcess() override
    {
        closeWriteChannel();
        if (state() != NotRunning && !waitForFinished())
            kill();
    }

    /** Reads on until this line comes; false when it does not. */
    bool waitForLine(const QByteArray &line)
    {
        do {
            while (!canReadLine()) {
                if (!waitForReadyRead(Patience))
                    return false;
            }
        } while (readLine().trimmed() != line);
        return true;
    }

    bool becomesPrimary()
    {
        return waitForLine("primary " + QByteArray::number(processId()) + ' ' +
                           InstanceName::currentUser().toUtf8()) &&
               waitForLine("not sent to myself");
    }

    /** Whether it hands over to the primary and ends. */
    bool endsAsSecond()
    {
        return waitForFinished(Patience) && exitStatus() == NormalExit && exitCode() == 0 &&
               !readAllStandardOutput().contains("primary");
    }

    /**
     * What it says when it cannot start. It says so in a window as well, and ends here
     * before somebody has closed that.
     */
    QByteArray words(const char *awaited = "does not answer")
    {
        setReadChannel(StandardError);
        QByteArray said;
        while (!said.contains(awaited) && waitForReadyRead(Patience))
            said += readAllStandardError();
        kill();
        waitForFinished();
        return said;
    }
};
