#include "catalogue/userdata/UserDataDatabase.h"

#include "base/files/PrivateAccess.h"
#include "catalogue/userdata/UserDataError.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QSqlError>
#include <QUuid>

namespace {

constexpr int SchemaVersion = 1;

const QString AllTags = QStringLiteral("tags");
const QString SmartFolders = QStringLiteral("folders");
const QString Catalogue = QStringLiteral("catalogue");
const QString UnsavedLists = QStringLiteral("unsaved lists");

// An entry without anything stands for an edit that has taken away all there was.
constexpr const char *Designs =
    "CREATE TABLE designs (id INTEGER PRIMARY KEY AUTOINCREMENT, hash TEXT NOT NULL,"
    " path TEXT NOT NULL, tags TEXT NOT NULL, notes TEXT NOT NULL, favorite INTEGER NOT NULL,"
    " present INTEGER NOT NULL, unsaved INTEGER NOT NULL, UNIQUE (hash, path))";
constexpr const char *DesignsByPath = "CREATE INDEX designs_by_path ON designs (path)";
constexpr const char *Lists =
    "CREATE TABLE lists (name TEXT NOT NULL, position INTEGER NOT NULL, entry TEXT NOT NULL,"
    " PRIMARY KEY (name, position))";
constexpr const char *States = "CREATE TABLE state (key TEXT PRIMARY KEY, value)";

constexpr char IsWritten[] = "NOT (tags = '[]' AND notes = '' AND favorite = 0)";

QString toText(const QStringList &tags)
{
    return QString::fromUtf8(
        QJsonDocument(QJsonArray::fromStringList(tags)).toJson(QJsonDocument::Compact));
}

QStringList toTags(const QString &text)
{
    QStringList tags;
    const QJsonArray array = QJsonDocument::fromJson(text.toUtf8()).array();
    for (const QJsonValue &tag : array)
        tags.append(tag.toString());
    return tags;
}

/** A null string would be stored as NULL. */
QString notNull(const QString &text)
{
    return text.isNull() ? QLatin1String("") : text;
}

/** Of a query that selects hash, path, tags, notes, favorite in this order. */
UserData rowOf(const QSqlQuery &query)
{
    return {query.value(0).toString(), query.value(1).toString(), toTags(query.value(2).toString()),
            query.value(3).toString(), query.value(4).toBool()};
}

} // namespace

UserDataDatabase::UserDataDatabase(const QString &path)
    : m_path(path), m_connection(QUuid::createUuid().toString())
{
    // Closed to others before anything is in it, and never over one that comes this moment.
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly);
    PrivateAccess::takeFromOthers(path);
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setDatabaseName(path);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000"));
    try {
        if (!m_database.open())
            fail(m_database.lastError());
        run("PRAGMA synchronous = FULL");
        // What is to be forgotten shall not stay in the file.
        run("PRAGMA secure_delete = ON");
        checkIsWhole();
        createTables();
    } catch (...) {
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connection);
        throw;
    }
}

UserDataDatabase::~UserDataDatabase()
{
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connection);
}

void UserDataDatabase::fail(const QSqlError &error) const
{
    // SQLITE_CORRUPT and SQLITE_NOTADB, and what a file with other tables leads to.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const bool damaged = code == 11 || code == 26 || code == 1;
    throw UserDataError(m_path + QStringLiteral(": ") + error.text(),
                        damaged ? UserDataError::Damaged : UserDataError::Failed);
}

QSqlQuery UserDataDatabase::prepare(const char *statement)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(QString::fromLatin1(statement)))
        fail(query.lastError());
    return query;
}

void UserDataDatabase::run(QSqlQuery &query, const QVariantList &values)
{
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values.at(i));
    if (!query.exec())
        fail(query.lastError());
}

void UserDataDatabase::run(const char *statement, const QVariantList &values)
{
    QSqlQuery query = prepare(statement);
    run(query, values);
}

QVariant UserDataDatabase::value(const char *statement, const QVariantList &values)
{
    QSqlQuery query = prepare(statement);
    run(query, values);
    return query.next() ? query.value(0) : QVariant();
}

template <class Work>
void UserDataDatabase::inTransaction(Work work)
{
    // Immediate, so that whoever else writes is waited for here and not in the middle.
    run("BEGIN IMMEDIATE");
    try {
        work();
        run("COMMIT");
    } catch (...) {
        QSqlQuery(m_database).exec(QStringLiteral("ROLLBACK"));
        throw;
    }
}

void UserDataDatabase::checkIsWhole()
{
    const QString answer = value("PRAGMA quick_check(1)").toString();
    if (answer != QLatin1String("ok"))
        throw UserDataError(m_path + QStringLiteral(": ") + answer, UserDataError::Damaged);
}

void UserDataDatabase::createTables()
{
    const int version = value("PRAGMA user_version").toInt();
    if (version > SchemaVersion)
        throw UserDataError(m_path + QStringLiteral(" was made by a newer version"),
                            UserDataError::Newer);
    if (version == SchemaVersion)
        return;
    inTransaction([this] {
        for (const char *table : {Designs, DesignsByPath, Lists, States})
            run(table);
        run("PRAGMA user_version = 1");
    });
}

QByteArray UserDataDatabase::catalogue()
{
    return state(Catalogue).toByteArray();
}

void UserDataDatabase::record(const UserDataChanges &changes)
{
    inTransaction([&] {
        recordDesigns(changes);
        QSqlQuery leave = prepare("UPDATE designs SET present = 0, unsaved = 1 WHERE path = ?"
                                  " AND present = 1");
        for (const QString &path : changes.gone)
            run(leave, {path});
        if (changes.allTags || changes.smartFolders)
            writeState(UnsavedLists, true);
        writeLists(changes);
    });
}

void UserDataDatabase::recordDesigns(const UserDataChanges &changes)
{
    // The same file with other stitches is not another design.
    QSqlQuery replaceContent =
        prepare("DELETE FROM designs WHERE path = ? AND hash <> ? AND present = 1");
    // What was taken away shall not come back with a copy that is met again.
    QSqlQuery forgetCopies =
        prepare("DELETE FROM designs WHERE hash = ? AND hash <> '' AND present = 0");
    QSqlQuery write = prepare("INSERT OR REPLACE INTO designs"
                              " (hash, path, tags, notes, favorite, present, unsaved)"
                              " VALUES (?, ?, ?, ?, ?, 1, 1)");
    for (const UserData &design : changes.designs) {
        const QString hash = notNull(design.contentHash);
        run(replaceContent, {design.path, hash});
        if (design.isEmpty())
            run(forgetCopies, {hash});
        run(write,
            {hash, design.path, toText(design.tags), notNull(design.notes), design.favorite});
    }
}

void UserDataDatabase::settle(const QByteArray &catalogue)
{
    inTransaction([&] {
        run(QByteArray("DELETE FROM designs WHERE unsaved = 1 AND NOT ").append(IsWritten));
        // What has moved is not absent: the same is written at its new place.
        run("DELETE FROM designs WHERE unsaved = 1 AND present = 0 AND EXISTS"
            " (SELECT 1 FROM designs AS now WHERE now.hash = designs.hash"
            " AND now.present = 1 AND now.unsaved = 1 AND now.tags = designs.tags"
            " AND now.notes = designs.notes AND now.favorite = designs.favorite)");
        run("UPDATE designs SET unsaved = 0 WHERE unsaved = 1");
        writeState(UnsavedLists, false);
        writeState(Catalogue, catalogue);
    });
}

void UserDataDatabase::adopt(const UserDataChanges &all, const QByteArray &catalogue)
{
    struct Row
    {
        UserData design;
        bool settled; ///< in the catalogue, and saved
    };
    inTransaction([&] {
        QHash<QPair<QString, QString>, Row> rows;
        QSqlQuery read = prepare("SELECT hash, path, tags, notes, favorite, present, unsaved"
                                 " FROM designs");
        run(read);
        while (read.next()) {
            const UserData design = rowOf(read);
            const bool settled = read.value(5).toBool() && !read.value(6).toBool();
            rows.insert({design.contentHash, design.path}, {design, settled});
        }
        read.finish();

        QSqlQuery forget = prepare("DELETE FROM designs WHERE hash = ? AND path = ?");
        QSqlQuery write = prepare("INSERT OR REPLACE INTO designs"
                                  " (hash, path, tags, notes, favorite, present, unsaved)"
                                  " VALUES (?, ?, ?, ?, ?, 1, 0)");
        for (const UserData &design : all.designs) {
            const QString hash = notNull(design.contentHash);
            const auto row = rows.find({hash, design.path});
            const bool known = row != rows.end();
            if (design.isEmpty() && known)
                run(forget, {hash, design.path});
            else if (!design.isEmpty() &&
                     !(known && row->settled && row->design.saysTheSame(design)))
                run(write, {hash, design.path, toText(design.tags), notNull(design.notes),
                            design.favorite});
            if (known)
                rows.erase(row);
        }
        QSqlQuery wait =
            prepare("UPDATE designs SET present = 0, unsaved = 0 WHERE hash = ? AND path = ?");
        for (const Row &row : qAsConst(rows))
            run(row.design.isEmpty() ? forget : wait, {row.design.contentHash, row.design.path});
        writeLists(all);
        writeState(UnsavedLists, false);
        writeState(Catalogue, catalogue);
    });
}

UserDataChanges UserDataDatabase::unsaved()
{
    UserDataChanges changes;
    // Also of what has left since: no catalogue file knows of that.
    QSqlQuery query = prepare("SELECT hash, path, tags, notes, favorite FROM designs"
                              " WHERE unsaved = 1 ORDER BY present, id");
    run(query);
    while (query.next())
        changes.designs.append(rowOf(query));
    if (state(UnsavedLists).toBool()) {
        changes.allTags = list(AllTags);
        changes.smartFolders = list(SmartFolders);
    }
    return changes;
}

UserDataChanges UserDataDatabase::lists()
{
    UserDataChanges changes;
    changes.allTags = list(AllTags);
    changes.smartFolders = list(SmartFolders);
    return changes;
}

QVector<UserData> UserDataDatabase::recall(const QVector<UserData> &newcomers)
{
    QVector<UserData> known;
    if (value("SELECT 1 FROM designs LIMIT 1").isNull())
        return known;
    const QByteArray written =
        QByteArray("SELECT hash, path, tags, notes, favorite FROM designs WHERE hash = ? AND ") +
        IsWritten + " ORDER BY path = ? DESC, id DESC LIMIT 1";
    QSqlQuery query = prepare(written);
    for (const UserData &newcomer : newcomers) {
        run(query, {notNull(newcomer.contentHash), newcomer.path});
        if (!query.next())
            continue;
        UserData design = rowOf(query);
        query.finish();
        // Files that could not be read have nothing in common.
        if (design.contentHash.isEmpty() && design.path != newcomer.path)
            continue;
        design.path = newcomer.path;
        known.append(design);
    }
    return known;
}

int UserDataDatabase::absentDesigns()
{
    return value("SELECT COUNT(DISTINCT hash || CASE hash WHEN '' THEN path ELSE '' END)"
                 " FROM designs WHERE present = 0"
                 " AND hash NOT IN (SELECT hash FROM designs WHERE present = 1)")
        .toInt();
}

void UserDataDatabase::forgetAbsentDesigns()
{
    inTransaction([this] { run("DELETE FROM designs WHERE present = 0"); });
}

void UserDataDatabase::writeLists(const UserDataChanges &changes)
{
    if (changes.allTags)
        writeList(AllTags, *changes.allTags);
    if (changes.smartFolders)
        writeList(SmartFolders, *changes.smartFolders);
}

void UserDataDatabase::writeList(const QString &name, const QStringList &entries)
{
    if (list(name) == entries)
        return;
    run("DELETE FROM lists WHERE name = ?", {name});
    QSqlQuery write = prepare("INSERT INTO lists (name, position, entry) VALUES (?, ?, ?)");
    for (int i = 0; i < entries.size(); ++i)
        run(write, {name, i, notNull(entries.at(i))});
}

QStringList UserDataDatabase::list(const QString &name)
{
    QStringList entries;
    QSqlQuery query = prepare("SELECT entry FROM lists WHERE name = ? ORDER BY position");
    run(query, {name});
    while (query.next())
        entries.append(query.value(0).toString());
    return entries;
}

void UserDataDatabase::writeState(const QString &key, const QVariant &state)
{
    run("INSERT OR REPLACE INTO state (key, value) VALUES (?, ?)", {key, state});
}

QVariant UserDataDatabase::state(const QString &key)
{
    return value("SELECT value FROM state WHERE key = ?", {key});
}
