#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

class QSqlError;

/** A connection to an SQLite file, of the thread that has made it. All throw UserDataError. */
class UserDataConnection
{
public:
    enum Access {
        ReadAndWrite,  ///< a file that is missing is made for the user alone; it must be whole
        ReadWhatIsLeft ///< nothing is changed, and nothing is checked
    };
    explicit UserDataConnection(const QString &path, Access access = ReadAndWrite);
    ~UserDataConnection();

    UserDataConnection(const UserDataConnection &) = delete;
    UserDataConnection &operator=(const UserDataConnection &) = delete;

    QString path() const { return m_path; }

    QSqlQuery prepare(const char *statement);
    void run(QSqlQuery &query, const QVariantList &values = {});
    void run(const char *statement, const QVariantList &values = {});
    /** The first value of the first row; invalid when there is none. */
    QVariant value(const char *statement, const QVariantList &values = {});
    /** Goes on to the next row; false behind the last one. */
    bool next(QSqlQuery &query) const;

    /** Either all of what @p work does is on the disk in the end, or nothing. */
    template <class Work>
    void inTransaction(Work work);

private:
    void open(Access access);
    void close();
    void checkIsWhole();
    void rollBack();
    [[noreturn]] void fail(const QSqlError &error) const;

    QString m_path;
    QString m_connection;
    QSqlDatabase m_database;
};

template <class Work>
void UserDataConnection::inTransaction(Work work)
{
    // Immediate, so that whoever else writes is waited for here and not in the middle.
    run("BEGIN IMMEDIATE");
    try {
        work();
        run("COMMIT");
    } catch (...) {
        rollBack();
        throw;
    }
}
