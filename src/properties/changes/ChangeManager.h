#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QVector>

class Observable;
class Observer;

/**
 * Knows which observer listens to which observable and calls them synchronously.
 * During a bulk operation announcements are held back, so that each observable
 * is announced once, at the place of its last change. Main thread only; an
 * observer may change properties in its handler, and that is announced at once.
 */
class ChangeManager
{
public:
    static ChangeManager &instance();

    /** Adds the pair; nothing happens when it is there already. */
    void registerObserver(Observer *observer, const Observable *observable);

    /** Tells @p observer of every change of whatever, beside those that it is registered with. */
    void registerForAll(Observer *observer);

    /** Ends what registerForAll() began. */
    void unregisterFromAll(Observer *observer);

    bool hasObserversOfAll() const { return !m_observersOfAll.isEmpty(); }

    /** Takes @p observable out of all its pairs. */
    void unregister(const Observable *observable);

    /** Takes @p observer out of all its pairs, and from what it was registered for besides. */
    void unregister(Observer *observer);

    /** Takes out the one pair. */
    void unregister(Observer *observer, const Observable *observable);

    /**
     * Calls the observers of @p observable, the latest registered first, or holds
     * the announcement back. @p observable is only a key and may be dead. Observers
     * that leave meanwhile are still called; none of them may be deleted meanwhile.
     */
    void announceChange(const Observable *observable);

    /**
     * Holds back the announcements of @p observables, of all when the list is
     * empty. Doesn't nest: whatever was held back before is dropped.
     */
    void startBulkOperation(const QList<const Observable *> &observables);

    /**
     * Delivers what was held back. With @p clearOutdated each observable is
     * announced once only, at the place of its last announcement.
     */
    void finishBulkOperation(bool clearOutdated);

    /**
     * What is held back or just being delivered, in order of its announcement. All
     * these changes have happened. Only keys, which may be dead.
     */
    const QVector<const Observable *> &pendingAnnouncements() const
    {
        return m_pendingAnnouncements;
    }

    bool isBulkOperationActive() const { return m_bulkOperationActive; }

    /** Diagnostic: logs the classes of @p observers at the current indent. */
    void logObservers(const Observable *observable, const QList<Observer *> &observers) const;

    /** Diagnostic: logs the class of @p observer and indents what follows. */
    void logAnnounce(Observer *observer);

    /** Diagnostic: ends the indent of logAnnounce(). */
    void logAnnounceEnd();

private:
    ChangeManager() = default;
    Q_DISABLE_COPY(ChangeManager)

    void clearOutdatedBulkChanges();
    void updateObservedFlag(const Observable *observable) const;

    QMultiHash<const Observable *, Observer *> m_observersByObservable;
    // One observer may listen to every record of the catalogue, so that its side
    // of the pairs is a set: leaving one pair must not search through all others.
    QHash<Observer *, QSet<const Observable *>> m_observablesByObserver;
    QVector<Observer *> m_observersOfAll;
    bool m_bulkOperationActive = false;
    QSet<const Observable *> m_bulkObservables;
    QVector<const Observable *> m_pendingAnnouncements;
    QString m_logIndent;
};
