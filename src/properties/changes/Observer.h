#pragma once

#include <QtGlobal>

class Observable;

/**
 * Told of the changes of the observables that it is registered with. An observer
 * that dies leaves all of them. Main thread only.
 */
class Observer
{
public:
    Observer() = default;
    virtual ~Observer();

    /** @p observable has changed; it already holds its new value. */
    virtual void observedObjectChanged(const Observable *observable) = 0;

private:
    Q_DISABLE_COPY(Observer)
};
