#include "properties/changes/Observable.h"

#include "properties/changes/ChangeManager.h"

Observable::~Observable()
{
    if (m_observed)
        ChangeManager::instance().unregister(this);
}

void Observable::registerObserver(Observer *observer) const
{
    ChangeManager::instance().registerObserver(observer, this);
}

void Observable::unregister(Observer *observer) const
{
    if (m_observed)
        ChangeManager::instance().unregister(observer, this);
}

void Observable::announceChange() const
{
    ChangeManager &manager = ChangeManager::instance();
    if (m_observed || manager.isBulkOperationActive() || manager.hasObserversOfAll())
        manager.announceChange(this);
}
