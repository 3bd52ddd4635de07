#pragma once

#include "base/IAbortCheck.h"

/** For work that cannot be cancelled. */
class DummyAbortCheck : public IAbortCheck
{
public:
    int abortState() const override { return 0; }
};
