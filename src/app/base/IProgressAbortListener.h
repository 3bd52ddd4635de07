#pragma once

#include "app/base/IAbortCheck.h"
#include "app/base/IProgressListener.h"

/** Hears of the progress of long work and can stop it. */
class IProgressAbortListener : public IProgressListener, public IAbortCheck
{
};
