#pragma once

#include "catalogue/userdata/UserData.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

/**
 * The file of the store: a row for each design that anything was written to, whether the
 * catalogue has it for now or not, and the lists of tags and folders. Every call that
 * writes is one transaction, which is on the disk when it returns. All throw UserDataError.
 * Of one thread, that which has made it.
 */
class UserDataDatabase
{
public:
    /** Opens the file, or makes it for the user alone. */
    explicit UserDataDatabase(const QString &path);
    ~UserDataDatabase();

    UserDataDatabase(const UserDataDatabase &) = delete;
    UserDataDatabase &operator=(const UserDataDatabase &) = delete;

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

private:
    QSqlQuery prepare(const char *statement);
    void run(QSqlQuery &query, const QVariantList &values = {});
    void run(const char *statement, const QVariantList &values = {});
    QVariant value(const char *statement, const QVariantList &values = {});
    void createTables();
    void checkIsWhole();
    void recordDesigns(const UserDataChanges &changes);
    void writeLists(const UserDataChanges &changes);
    void writeList(const QString &name, const QStringList &entries);
    QStringList list(const QString &name);
    void writeState(const QString &key, const QVariant &state);
    QVariant state(const QString &key);
    [[noreturn]] void fail(const QSqlError &error) const;

    template <class Work>
    void inTransaction(Work work);

    QString m_path;
    QString m_connection;
    QSqlDatabase m_database;
};
