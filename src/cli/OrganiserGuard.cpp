#include "cli/OrganiserGuard.h"

#include "base/InstanceName.h"
#include <algorithm>
#include <cerrno>
#include <QCoreApplication>
#include <QFile>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr timeval AnswerTime = {1, 0};

QString organiserName()
{
    InstanceName name;
    name.applicationName = QCoreApplication::applicationName();
    name.organisationName = QCoreApplication::organizationName();
    name.organisationDomain = QCoreApplication::organizationDomain();
    name.userName = InstanceName::currentUser();
    return name.toString();
}

/** Whether a server listens at @p path, be it that it is too busy to take the call. */
bool serverAnswers(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    if (name.size() >= int(sizeof(address.sun_path)))
        return false; // no server has so long a name
    address.sun_family = AF_UNIX;
    std::copy(name.begin(), name.end(), address.sun_path);

    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return true;
    setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &AnswerTime, sizeof(AnswerTime));
    const int result =
        connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
    const bool isThere = result == 0 || errno == EAGAIN || errno == EINTR;
    close(descriptor);
    return isThere;
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

QString OrganiserGuard::runningText()
{
    return tr("Hoopline Organizer is running. Close it first, or do it in its window.");
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
    const QStringList paths = InstanceName::socketPaths(m_name);
    return std::any_of(paths.begin(), paths.end(), serverAnswers);
}
