#pragma once

#include "base/files/FileLock.h"
#include "catalogue/sync/ProjectController.h"

/**
 * The controller of a scan without a window. Holds the lock of those who write the
 * catalogue from its opening on, and saves only what cannot harm: neither over the work
 * of somebody else nor while a smart folder is missing.
 */
class ScanController : public ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(ScanController)

public:
    /** @param prune whether the designs of folders that are missing may leave the catalogue */
    explicit ScanController(bool prune);

    /**
     * Unlike the organiser's loading this never overwrites a catalogue that cannot
     * be read.
     * @throws CommandError while an organiser or another scan works on the catalogue and
     *         while a smart folder is missing, Error when the catalogue cannot be read or
     *         made
     */
    void open();

    /** @throws CommandError when saving would lose something, Error when it fails */
    void saveProjectIfModified() override;

private:
    void takeLock();
    void loadOrMakeCatalogue();
    void expectFolders() const;

    const bool m_prune;
    FileLock m_lock;
};
