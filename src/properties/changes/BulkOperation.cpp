#include "properties/changes/BulkOperation.h"

#include "base/GDebug.h"
#include "properties/changes/ChangeManager.h"

#include <exception>

BulkOperation::BulkOperation(const QList<const Observable *> &observables)
{
    ChangeManager::instance().startBulkOperation(observables);
}

BulkOperation::~BulkOperation()
{
    if (m_finished)
        return;
    try {
        finish();
    } catch (...) {
        gWarning("BulkOperation") << "an observer failed while another failure was passed on";
    }
}

void BulkOperation::finish()
{
    m_finished = true;
    ChangeManager::instance().finishBulkOperation(true);
}
