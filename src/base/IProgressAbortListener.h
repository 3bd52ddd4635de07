#pragma once

#include "base/IAbortCheck.h"
#include "base/IProgressListener.h"

/** Hears of the progress of long work and can stop it. */
class IProgressAbortListener : public IProgressListener, public IAbortCheck
{
};
