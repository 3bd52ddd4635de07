#pragma once

#include "cli/ExclusiveController.h"

/**
 * The controller of a scan without a window. Makes the catalogue where there is none, and
 * saves nothing while a smart folder is missing.
 */
class ScanController : public ExclusiveController
{
    Q_DECLARE_TR_FUNCTIONS(ScanController)

public:
    /** @param prune whether the designs of folders that are missing may leave the catalogue */
    explicit ScanController(bool prune) : m_prune(prune) {}

    /**
     * Unlike the organiser's loading this never overwrites a catalogue that cannot
     * be read.
     * @throws CommandError while an organiser or another command works on the catalogue and
     *         while a smart folder is missing, Error when the catalogue cannot be read or
     *         made
     */
    void open() override;

    /** @throws CommandError when saving would lose something, Error when it fails */
    void saveProjectIfModified() override;

private:
    void loadOrMakeCatalogue();
    void expectFolders() const;

    const bool m_prune;
};
