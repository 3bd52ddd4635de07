#include "FakeOrganiser.h"

#include "base/BuildConfig.h"
#include "base/InstanceBlock.h"
#include "base/InstanceName.h"

static QString organiserName()
{
    InstanceName name;
    name.applicationName = "Hoopline Organizer";
    name.organisationName = QLatin1String(BuildConfig::Organisation);
    name.userName = InstanceName::currentUser();
    return name.toString();
}

FakeOrganiser::FakeOrganiser() : m_name(organiserName()), m_block(m_name) {}

bool FakeOrganiser::start()
{
    if (!m_block.create(sizeof(InstanceBlock)) && !m_block.attach())
        return false;
    if (!m_block.lock())
        return false;
    auto *block = static_cast<InstanceBlock *>(m_block.data());
    block->initialize();
    block->primary = true;
    block->seal();
    m_block.unlock();
    return m_server.listen(m_name);
}
