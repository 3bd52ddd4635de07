#pragma once

#include "catalogue/query/SavedSearches.h"
#include "catalogue/userdata/RememberedValues.h"

#include <QObject>
#include <QString>

class UserDataStore;
struct Remembered;

/**
 * What is remembered and is in no catalogue: saved searches, and small choices of the user.
 * Each change goes to the store at once, and waits there for a disk that refuses it. Main
 * thread only.
 */
class RememberedData : public QObject
{
    Q_OBJECT

public:
    /**
     * @param store must outlive this
     * @param oldFile that of saved searches in earlier versions, taken over and removed
     */
    RememberedData(UserDataStore *store, const QString &oldFile);

    SavedSearches *searches() { return &m_searches; }
    RememberedValues *values() { return &m_values; }

    /** Saved searches as backups carry them; empty when there are none. */
    QByteArray searchesForBackup() const;
    /** The same of the store in the file @p path, which is only looked into. */
    static QByteArray searchesForBackup(const QString &path);
    /** Adds those of a backup that are not there. */
    void restoreSearches(const QByteArray &backup);

    /** Tries again at once to write what could not be written. */
    void tryAgain();
    /** Why something is not on the disk, after another try; empty when all is there. */
    QString failure();

signals:
    /** Something can't be written; with an empty reason: all is on the disk now. */
    void failed(const QString &reason);

private:
    void take(const Remembered &all);
    void takeOldFile();
    void tellAgain();

    UserDataStore *m_store;
    QString m_oldFile;
    SavedSearches m_searches;
    RememberedValues m_values;
};
