#pragma once

#include "properties/changes/ChangeManager.h"
#include "properties/changes/Observable.h"

#include <QVector>

/**
 * Has an observer told of the changes of any number of observables. When they are very many,
 * naming each would take longer than looking at all of them once more: the observer is told
 * of every change then, whosever it is. Main thread only.
 */
class ManyObservables
{
public:
    /** @param observer must live as long as this */
    explicit ManyObservables(Observer *observer) : m_observer(observer) {}
    /** What it was registered with by name, the observer's own end takes back. */
    ~ManyObservables()
    {
        if (m_all)
            ChangeManager::instance().unregisterFromAll(m_observer);
    }

    ManyObservables(const ManyObservables &) = delete;
    ManyObservables &operator=(const ManyObservables &) = delete;

    /** Takes the place of those before. They may not die before they are replaced. */
    template <class List>
    void set(const List &observables)
    {
        clear();
        if (observables.size() > MostNamed) {
            ChangeManager::instance().registerForAll(m_observer);
            m_all = true;
            return;
        }
        for (const Observable *observable : observables) {
            observable->registerObserver(m_observer);
            m_named.append(observable);
        }
    }

private:
    static constexpr int MostNamed = 2000;

    void clear()
    {
        if (m_all)
            ChangeManager::instance().unregisterFromAll(m_observer);
        m_all = false;
        for (const Observable *observable : qAsConst(m_named))
            observable->unregister(m_observer);
        m_named.clear();
    }

    Observer *m_observer;
    QVector<const Observable *> m_named;
    bool m_all = false;
};
