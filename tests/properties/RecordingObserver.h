#pragma once

#include "properties/changes/Observable.h"
#include "properties/changes/Observer.h"

#include <functional>
#include <QList>

/** Remembers what it was told of, in order, and may do something about it. */
class RecordingObserver : public Observer
{
public:
    void observedObjectChanged(const Observable *observable) override
    {
        heard.append(observable);
        if (reaction)
            reaction();
    }

    QList<const Observable *> heard;
    std::function<void()> reaction;
};
