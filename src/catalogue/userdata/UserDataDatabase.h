#pragma once

#include "catalogue/userdata/RememberedTables.h"
#include "catalogue/userdata/UserData.h"
#include "catalogue/userdata/UserDataConnection.h"

#include <QByteArray>
#include <QSet>
#include <QVariant>

/**
 * The file of the store: a row for each design that anything was written to, whether the
 * catalogue has it for now or not, the lists of tags and folders, and what is remembered
 * besides. Every call that writes is one transaction, which is on the disk when it returns.
 * All throw UserDataError.
 * Of one thread, that which has made it.
 */
class UserDataDatabase
{
public:
    /** Opens the file, or makes it for the user alone. */
    explicit UserDataDatabase(const QString &path);

    /** Digest of the catalogue file that the unsaved edits were made on; empty for none. */
    QByteArray catalogue();

    /** Edits that no catalogue file holds yet. */
    void record(const UserDataChanges &changes);

    /** A catalogue file of this digest holds all that was recorded until now. */
    void settle(const QByteArray &catalogue);

    /**
     * Takes over a catalogue, of which @p all tells every design. What it says about its own
     * designs holds; what is known of others is kept.
     */
    void adopt(const UserDataChanges &all, const QByteArray &catalogue);

    /** The edits that were not saved, also to designs that have left the catalogue since. */
    UserDataChanges unsaved();

    /** The lists as they were last. */
    UserDataChanges lists();

    /**
     * What is known of designs that enter the catalogue, by their path or else what was
     * written last to the same content; those of which nothing is known are left out.
     */
    QVector<UserData> recall(const QVector<UserData> &newcomers);

    /** Number of designs with anything written to them that are not in the catalogue. */
    int absentDesigns();
    void forgetAbsentDesigns();

    /** Saved searches and values, which no catalogue holds. */
    Remembered remembered() { return m_remembered.all(); }
    void remember(const Remembered &edits) { m_remembered.write(edits); }

private:
    void createTables();
    void recordDesigns(const UserDataChanges &changes);
    void writeLists(const UserDataChanges &changes);
    void writeList(const QString &name, const QStringList &entries);
    QStringList list(const QString &name);
    QSet<QString> writtenHashes();
    void writeState(const QString &key, const QVariant &state);
    QVariant state(const QString &key);

    UserDataConnection m_sql;
    RememberedTables m_remembered;
};
