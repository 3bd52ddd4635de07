#include "properties/changes/ChangeManager.h"

#include "base/GDebug.h"
#include "properties/changes/Observer.h"
#include "properties/core/Property.h"

#include <algorithm>
#include <QRegularExpression>
#include <QStringList>
#include <typeinfo>

ChangeManager &ChangeManager::instance()
{
    static ChangeManager manager;
    return manager;
}

void ChangeManager::registerObserver(Observer *observer, const Observable *observable)
{
    QSet<const Observable *> &observables = m_observablesByObserver[observer];
    const int before = observables.size();
    observables.insert(observable);
    if (observables.size() == before)
        return;
    m_observersByObservable.insert(observable, observer);
    observable->m_observed = true;
}

void ChangeManager::registerForAll(Observer *observer)
{
    if (!m_observersOfAll.contains(observer))
        m_observersOfAll.append(observer);
}

void ChangeManager::unregisterFromAll(Observer *observer)
{
    m_observersOfAll.removeOne(observer);
}

void ChangeManager::unregister(const Observable *observable)
{
    const QList<Observer *> observers = m_observersByObservable.values(observable);
    for (Observer *observer : observers) {
        const auto it = m_observablesByObserver.find(observer);
        it->remove(observable);
        if (it->isEmpty())
            m_observablesByObserver.erase(it);
    }
    if (observers.isEmpty())
        return;
    m_observersByObservable.remove(observable);
    observable->m_observed = false;
}

void ChangeManager::unregister(Observer *observer)
{
    unregisterFromAll(observer);
    const QSet<const Observable *> observables = m_observablesByObserver.take(observer);
    for (const Observable *observable : observables) {
        m_observersByObservable.remove(observable, observer);
        updateObservedFlag(observable);
    }
}

void ChangeManager::unregister(Observer *observer, const Observable *observable)
{
    const auto it = m_observablesByObserver.find(observer);
    if (it == m_observablesByObserver.end() || !it->remove(observable))
        return;
    if (it->isEmpty())
        m_observablesByObserver.erase(it);
    m_observersByObservable.remove(observable, observer);
    updateObservedFlag(observable);
}

void ChangeManager::updateObservedFlag(const Observable *observable) const
{
    observable->m_observed = m_observersByObservable.contains(observable);
}

void ChangeManager::announceChange(const Observable *observable)
{
    if (m_bulkOperationActive &&
        (m_bulkObservables.isEmpty() || m_bulkObservables.contains(observable))) {
        m_pendingAnnouncements.append(observable);
        return;
    }
    const QList<Observer *> observers = m_observersByObservable.values(observable);
    const QVector<Observer *> observersOfAll = m_observersOfAll;
    for (Observer *observer : observers)
        observer->observedObjectChanged(observable);
    for (Observer *observer : observersOfAll)
        observer->observedObjectChanged(observable);
}

void ChangeManager::startBulkOperation(const QList<const Observable *> &observables)
{
    m_bulkOperationActive = true;
    m_bulkObservables = QSet<const Observable *>(observables.begin(), observables.end());
    m_pendingAnnouncements.clear();
}

void ChangeManager::finishBulkOperation(bool clearOutdated)
{
    m_bulkOperationActive = false;
    if (clearOutdated)
        clearOutdatedBulkChanges();
    const QVector<const Observable *> pending = m_pendingAnnouncements;
    for (const Observable *observable : pending)
        announceChange(observable);
    m_pendingAnnouncements.clear();
}

void ChangeManager::clearOutdatedBulkChanges()
{
    QSet<const Observable *> seen;
    QVector<const Observable *> latest;
    for (auto it = m_pendingAnnouncements.crbegin(); it != m_pendingAnnouncements.crend(); ++it) {
        const int before = seen.size();
        seen.insert(*it);
        if (seen.size() != before)
            latest.append(*it);
    }
    std::reverse(latest.begin(), latest.end());
    m_pendingAnnouncements = latest;
}

static QString className(const Observer *observer)
{
    static const QRegularExpression leadingDigits(QStringLiteral("^\\d+"));
    return QString::fromLatin1(typeid(*observer).name()).remove(leadingDigits);
}

void ChangeManager::logObservers(const Observable *observable,
                                 const QList<Observer *> &observers) const
{
    QStringList names;
    for (const Observer *observer : observers)
        names.append(className(observer));
    const auto *property = dynamic_cast<const Property *>(observable);
    gDebug("ChangeManager") << m_logIndent + (property ? property->propertyName() : QString()) +
                                   QStringLiteral(": ") + names.join(QStringLiteral(", "));
}

void ChangeManager::logAnnounce(Observer *observer)
{
    gDebug("ChangeManager") << m_logIndent + className(observer);
    m_logIndent += QStringLiteral("    ");
}

void ChangeManager::logAnnounceEnd()
{
    m_logIndent.chop(4);
}
