#pragma once

#include "base/IAbortCheck.h"
#include "base/IProgressListener.h"

/** Hears of the progress of long work and can stop it. */
class IProgressAbortListener : public IProgressListener, public IAbortCheck
{
public:
    /**
     * Called every few hundredths of a second while the work waits for something. No
     * step on; a chance to let the user ask for the end.
     */
    virtual void stayResponsive() {}
};
