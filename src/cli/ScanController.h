#pragma once

#include "catalogue/sync/ProjectController.h"

/**
 * The controller of a scan without a window. Saves only while no organiser runs
 * and only over the catalogue that it has loaded: an organiser that was started
 * during the scan keeps what it has.
 */
class ScanController : public ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(ScanController)

public:
    /**
     * Unlike the organiser's loading this never overwrites a catalogue that cannot
     * be read.
     * @throws CatalogueInUseError while an organiser runs, Error when the
     *         catalogue cannot be read or made
     */
    void open();

    /** @throws CatalogueInUseError when saving would lose the changes of an organiser */
    void saveProjectIfModified() override;
};
