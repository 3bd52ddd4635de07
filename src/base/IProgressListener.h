#pragma once

#include <QString>

/** What long work reports its progress to. */
class IProgressListener
{
public:
    virtual ~IProgressListener() = default;

    /** Announces how many proceed() calls make up the whole. */
    virtual void setSteps(int steps) = 0;

    /** One step on; @p message says what is being done, for the user. */
    virtual void proceed(const QString &message) = 0;
};
