#include "cli/OrganiserGuard.h"

#include "base/InstanceName.h"
#include <QCoreApplication>
#include <QLocalSocket>

namespace {

constexpr int AnswerMilliseconds = 1000;

QString organiserName()
{
    InstanceName name;
    name.applicationName = QCoreApplication::applicationName();
    name.organisationName = QCoreApplication::organizationName();
    name.organisationDomain = QCoreApplication::organizationDomain();
    name.userName = InstanceName::currentUser();
    return name.toString();
}

} // namespace

OrganiserGuard::OrganiserGuard() : m_name(organiserName()), m_block(m_name)
{
    const bool created = m_block.create(sizeof(InstanceBlock));
    if (!created && !m_block.attach())
        return;
    m_locked = m_block.lock();
    if (m_locked && created)
        static_cast<InstanceBlock *>(m_block.data())->initialize();
}

OrganiserGuard::~OrganiserGuard()
{
    if (m_locked)
        m_block.unlock();
}

bool OrganiserGuard::isOrganiserRunning() const
{
    return !knowsThatNoneRuns() && organiserAnswers();
}

bool OrganiserGuard::knowsThatNoneRuns() const
{
    if (!m_locked || m_block.size() < int(sizeof(InstanceBlock)))
        return false;
    const auto *block = static_cast<const InstanceBlock *>(m_block.constData());
    return block->isIntact() && !block->primary;
}

bool OrganiserGuard::organiserAnswers() const
{
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (socket.waitForConnected(AnswerMilliseconds))
        return true;
    // Any other failure comes from a server that is there but busy.
    return socket.error() != QLocalSocket::ServerNotFoundError &&
           socket.error() != QLocalSocket::ConnectionRefusedError;
}
