#include "faults/FaultyProcess.h"

#include <algorithm>

namespace {

constexpr int PatienceMs = 30000;

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

void FaultyProcess::startAndEnd(const QString &organizer)
{
    m_plan->ends = true;
    start(organizer, QStringList());
}
