#include "properties/changes/Observer.h"

#include "properties/changes/ChangeManager.h"

Observer::~Observer()
{
    ChangeManager::instance().unregister(this);
}
