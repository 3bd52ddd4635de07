#include "faults/FaultyProcess.h"

#include <algorithm>
#include <csignal>
#include <QDeadlineTimer>

namespace {

constexpr int PatienceMs = 30000;
constexpr int PollMs = 2;
constexpr int QuestionMs = 200;

/** Whether the process has a handler for the signal. */
bool catches(qint64 process, int signal)
{
    const QByteArray status = Profile::read(QStringLiteral("/proc/%1/status").arg(process));
    const QByteArray mark("SigCgt:");
    const int at = status.indexOf(mark);
    const QByteArray digits = status.mid(at + mark.size(), 17).trimmed();
    return at >= 0 && (digits.toULongLong(nullptr, 16) >> (signal - 1) & 1);
}

} // namespace

FaultyProcess::FaultyProcess(const Profile &profile, const Fault &fault)
    : m_file(profile.planFile())
{
    if (!m_file.open(QIODevice::ReadWrite) || !m_file.resize(sizeof(FaultPlan)))
        return;
    m_plan = reinterpret_cast<FaultPlan *>(m_file.map(0, sizeof(FaultPlan)));
    const QByteArray folder = QFile::encodeName(profile.disk());
    if (!m_plan || folder.size() >= FaultPlan::LongestPath)
        return;
    std::copy(folder.begin(), folder.end(), m_plan->folder.begin());
    m_plan->error = fault.error;
    m_plan->first = fault.number;
    m_plan->lasting = fault.lasting;
    auto environment = profile.environment();
    environment.insert(FaultPlanVariable, m_file.fileName());
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(FAULTY_DISK));
    // A sanitizer wants to come first; what comes ahead of it here calls it.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
    setProcessEnvironment(environment);
}

FaultyProcess::~FaultyProcess()
{
    if (state() != NotRunning)
        waitForEnd();
    m_file.remove();
}

bool FaultyProcess::waitForEnd()
{
    if (state() == NotRunning || waitForFinished(PatienceMs))
        return true;
    kill();
    waitForFinished();
    return false;
}

void FaultyProcess::endOnceStarted()
{
    // A test that is about to become the organizer is there for signals, too.
    waitForStarted();
    // It is there for them before its window is, and makes that before it ends.
    const QDeadlineTimer deadline(PatienceMs);
    while (!deadline.hasExpired() && state() != NotRunning && !waitForFinished(PollMs) &&
           !catches(processId(), SIGTERM)) {
    }
    terminate();
    while (!deadline.hasExpired() && state() != NotRunning && !waitForFinished(QuestionMs)) {
        // It may ask whether to end without having saved. Somebody has made room meanwhile.
        if (m_plan->struck && m_plan->error != FaultPlan::Kill) {
            m_plan->error = FaultPlan::Never;
            if (catches(processId(), SIGTERM))
                terminate();
        }
    }
}

bool FaultyProcess::wasKilled() const
{
    // One that is about to end does not mind being asked once more.
    return exitStatus() == CrashExit && exitCode() != SIGTERM;
}
