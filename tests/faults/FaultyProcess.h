#pragma once

#include "faults/FaultPlan.h"
#include "faults/Profile.h"

#include <QFile>
#include <QProcess>

/** One fault of a disk. */
struct Fault
{
    int error = FaultPlan::Never; ///< as in FaultPlan
    int number = 0;               ///< of the call that fails, from 1; none for 0
    bool lasting = false;
};

/** A process whose disk fails as planned. Any thread, of one thread. */
class FaultyProcess : public QProcess
{
public:
    FaultyProcess(const Profile &profile, const Fault &fault);
    ~FaultyProcess() override;

    /** Waits for the end; kills what does not end, and returns false then. */
    bool waitForEnd();

    /**
     * Starts the organizer, which is asked to end once it has started. A disk that makes it
     * ask something gets well again.
     */
    void startAndEnd(const QString &organizer);

    bool wasKilled() const { return exitStatus() == CrashExit; }
    /** Of a process that was not killed. */
    int status() const { return exitCode(); }

    /** Nothing when the plan could not be made. */
    FaultPlan *plan() const { return m_plan; }

private:
    QFile m_file;
    FaultPlan *m_plan = nullptr;
};
