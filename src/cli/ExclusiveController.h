#pragma once

#include "base/files/FileLock.h"
#include "catalogue/sync/ProjectController.h"
#include "cli/OrganiserGuard.h"

/**
 * The controller of a command that changes the catalogue. Holds the lock of those who write
 * it from its opening on, and never saves over the work of somebody else.
 */
class ExclusiveController : public ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(ExclusiveController)

public:
    ExclusiveController();
    ~ExclusiveController() override;

    /**
     * Opens the catalogue that is there.
     * @throws CommandError while an organiser or another command works on it, Error when
     *         there is none or it cannot be read
     */
    virtual void open();

    /** @throws CommandError when saving would lose something, Error when it fails */
    void saveProjectIfModified() override;

protected:
    /** @throws CommandError while somebody else has the lock */
    void takeLock();

    /** Whether an organiser runs that works on this very catalogue. */
    static bool isOrganiserRunning(const OrganiserGuard &guard);

private:
    void save();

    FileLock m_lock;
};
