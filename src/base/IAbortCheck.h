#pragma once

/** Asked by long work whether it is to stop. */
class IAbortCheck
{
public:
    virtual ~IAbortCheck() = default;

    /** 0 to go on; anything else to stop. */
    virtual int abortState() const = 0;
};
