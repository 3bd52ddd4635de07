#pragma once

#include "catalogue/records/Project.h"
#include "catalogue/userdata/UserData.h"
#include "properties/changes/Observer.h"

#include <chrono>
#include <QHash>
#include <QObject>
#include <QSharedPointer>
#include <QTimer>

/**
 * Finds out what people write to the records of a catalogue, by whatever road: it looks
 * through them a while after something was edited, a few records at a time so that the
 * window never waits, and compares them with what they were. Main thread only.
 */
class UserDataTracker : public QObject, private Observer
{
    Q_OBJECT

public:
    explicit UserDataTracker(const QSharedPointer<Project> &project);

    /** How long edits are gathered before they are looked for. */
    void setInterval(std::chrono::milliseconds interval) { m_timer.setInterval(interval); }

    /** Looks through all records now, and emits what it finds before it returns. */
    void collectNow();

    /** What every design of the catalogue bears; from now on only changes to it are found. */
    UserDataChanges everything();

signals:
    void found(const UserDataChanges &changes);

private:
    struct Known
    {
        QString contentHash;
        QStringList tags;
        QString notes;
        bool favorite;
        int pass; ///< in which the record was last there
    };

    void observedObjectChanged(const Observable *observable) override;
    void noteEdit();
    void begin();
    void lookOn();
    void look(int from, int to);
    void lookAt(const File &file);
    void finish();
    static UserData dataOf(const File &file);
    void know(const UserData &data);

    QSharedPointer<Project> m_project;
    QHash<QString, Known> m_known;
    QStringList m_allTags;
    QStringList m_smartFolders;
    UserDataChanges m_found;
    int m_pass = 0;
    int m_next = -1; ///< the record to look at next; -1 while nobody looks
    bool m_editedMeanwhile = false;
    QTimer m_timer;
    QTimer m_step;
};
