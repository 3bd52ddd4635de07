#include "properties/Observer.h"

#include "properties/ChangeManager.h"

Observer::~Observer()
{
    ChangeManager::instance().unregister(this);
}
