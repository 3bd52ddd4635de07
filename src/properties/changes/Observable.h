#pragma once

#include <QtGlobal>

class Observer;

/**
 * Something whose changes can be listened to. The pairs of observables and
 * observers are kept by ChangeManager; an observable that dies leaves all of
 * them and announces nothing. Main thread only.
 */
class Observable
{
public:
    Observable() = default;
    virtual ~Observable();

    /** Has @p observer told of every change from now on; a second call changes nothing. */
    void registerObserver(Observer *observer) const;

    /** Ends what registerObserver() began. */
    void unregister(Observer *observer) const;

    /** Tells all observers, the latest registered first, before it returns. */
    void announceChange() const;

private:
    friend class ChangeManager;
    Q_DISABLE_COPY(Observable)

    // Spares the millions of properties that nobody listens to the look-up.
    mutable bool m_observed = false;
};
