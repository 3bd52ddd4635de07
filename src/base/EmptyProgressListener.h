#pragma once

#include "base/IProgressAbortListener.h"

/** Hears nothing and never stops the work. */
class EmptyProgressListener : public IProgressAbortListener
{
public:
    void setSteps(int) override {}
    void proceed(const QString &) override {}
    int abortState() const override { return 0; }
};

/** Stands in wherever no listener was given. */
extern EmptyProgressListener emptyProgressListener;
