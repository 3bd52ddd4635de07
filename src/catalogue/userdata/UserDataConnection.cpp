#include "catalogue/userdata/UserDataConnection.h"

#include "base/files/PrivateAccess.h"
#include "catalogue/userdata/UserDataError.h"

#include <QFile>
#include <QSqlError>
#include <QUuid>

UserDataConnection::UserDataConnection(const QString &path, Access access)
    : m_path(path), m_connection(QUuid::createUuid().toString())
{
    if (access == ReadAndWrite) {
        // Closed to others before anything is in it, and never over one that comes this moment.
        QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly);
        PrivateAccess::takeFromOthers(path);
    }
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    try {
        open(access);
    } catch (...) {
        close();
        throw;
    }
}

UserDataConnection::~UserDataConnection()
{
    close();
}

void UserDataConnection::open(Access access)
{
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000");
    if (access == ReadWhatIsLeft)
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
    m_database.setDatabaseName(m_path);
    m_database.setConnectOptions(options);
    if (!m_database.open())
        fail(m_database.lastError());
    if (access == ReadWhatIsLeft) {
        // Otherwise a file that was cut is refused as a whole.
        run("PRAGMA writable_schema = ON");
        return;
    }
    run("PRAGMA synchronous = FULL");
    // What is to be forgotten shall not stay in the file.
    run("PRAGMA secure_delete = ON");
    checkIsWhole();
}

void UserDataConnection::close()
{
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connection);
}

void UserDataConnection::fail(const QSqlError &error) const
{
    // SQLITE_CORRUPT and SQLITE_NOTADB, and what a file with other tables leads to.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const bool damaged = code == 11 || code == 26 || code == 1;
    throw UserDataError(m_path + QStringLiteral(": ") + error.text(),
                        damaged ? UserDataError::Damaged : UserDataError::Failed);
}

QSqlQuery UserDataConnection::prepare(const char *statement)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(QString::fromLatin1(statement)))
        fail(query.lastError());
    return query;
}

void UserDataConnection::run(QSqlQuery &query, const QVariantList &values)
{
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values.at(i));
    if (!query.exec())
        fail(query.lastError());
}

void UserDataConnection::run(const char *statement, const QVariantList &values)
{
    QSqlQuery query = prepare(statement);
    run(query, values);
}

QVariant UserDataConnection::value(const char *statement, const QVariantList &values)
{
    QSqlQuery query = prepare(statement);
    run(query, values);
    return query.next() ? query.value(0) : QVariant();
}

bool UserDataConnection::next(QSqlQuery &query) const
{
    if (query.next())
        return true;
    if (query.lastError().isValid())
        fail(query.lastError());
    return false;
}

void UserDataConnection::checkIsWhole()
{
    const QString answer = value("PRAGMA quick_check(1)").toString();
    if (answer != QLatin1String("ok"))
        throw UserDataError(m_path + QStringLiteral(": ") + answer, UserDataError::Damaged);
}

void UserDataConnection::rollBack()
{
    QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
}
