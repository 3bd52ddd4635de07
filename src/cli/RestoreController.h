#pragma once

#include "cli/ExclusiveController.h"

/** The controller of a restore: opens a catalogue also when it is damaged or not there. */
class RestoreController : public ExclusiveController
{
public:
    /**
     * @throws CommandError while an organiser or another command works on the catalogue,
     *         Error when it cannot be used, as one of a newer version
     */
    void open() override;
};
