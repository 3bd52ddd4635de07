#include "catalogue/userdata/UserDataDatabase.h"

#include "catalogue/userdata/UserDataError.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSqlQuery>

namespace {

constexpr int SchemaVersion = 1;
// Asking for each is cheaper than looking through all that is known.
constexpr int FewNewcomers = 100;

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

UserDataDatabase::UserDataDatabase(const QString &path) : m_sql(path), m_remembered(m_sql)
{
    createTables();
}

void UserDataDatabase::createTables()
{
    const int version = m_sql.value("PRAGMA user_version").toInt();
    if (version > SchemaVersion)
        throw UserDataError(m_sql.path() + QStringLiteral(" was made by a newer version"),
                            UserDataError::Newer);
    // Versions that do not know of them leave them alone.
    m_remembered.create();
    if (version == SchemaVersion)
        return;
    m_sql.inTransaction([this] {
        for (const char *table : {Designs, DesignsByPath, Lists, States})
            m_sql.run(table);
        m_sql.run("PRAGMA user_version = 1");
    });
}

QByteArray UserDataDatabase::catalogue()
{
    return state(Catalogue).toByteArray();
}

void UserDataDatabase::record(const UserDataChanges &changes)
{
    m_sql.inTransaction([&] {
        recordDesigns(changes);
        QSqlQuery leave = m_sql.prepare("UPDATE designs SET present = 0, unsaved = 1 WHERE path = ?"
                                        " AND present = 1");
        for (const QString &path : changes.gone)
            m_sql.run(leave, {path});
        if (changes.allTags || changes.smartFolders)
            writeState(UnsavedLists, true);
        writeLists(changes);
    });
}

void UserDataDatabase::recordDesigns(const UserDataChanges &changes)
{
    // The same file with other stitches is not another design.
    QSqlQuery replaceContent =
        m_sql.prepare("DELETE FROM designs WHERE path = ? AND hash <> ? AND present = 1");
    // What was taken away shall not come back with a copy that is met again.
    QSqlQuery forgetCopies =
        m_sql.prepare("DELETE FROM designs WHERE hash = ? AND hash <> '' AND present = 0");
    QSqlQuery write = m_sql.prepare("INSERT OR REPLACE INTO designs"
                                    " (hash, path, tags, notes, favorite, present, unsaved)"
                                    " VALUES (?, ?, ?, ?, ?, 1, 1)");
    for (const UserData &design : changes.designs) {
        const QString hash = notNull(design.contentHash);
        m_sql.run(replaceContent, {design.path, hash});
        if (design.isEmpty())
            m_sql.run(forgetCopies, {hash});
        m_sql.run(write,
                  {hash, design.path, toText(design.tags), notNull(design.notes), design.favorite});
    }
}

void UserDataDatabase::settle(const QByteArray &catalogue)
{
    m_sql.inTransaction([&] {
        m_sql.run(QByteArray("DELETE FROM designs WHERE unsaved = 1 AND NOT ").append(IsWritten));
        // What has moved is not absent: the same is written at its new place.
        m_sql.run("DELETE FROM designs WHERE unsaved = 1 AND present = 0 AND EXISTS"
                  " (SELECT 1 FROM designs AS now WHERE now.hash = designs.hash"
                  " AND now.present = 1 AND now.unsaved = 1 AND now.tags = designs.tags"
                  " AND now.notes = designs.notes AND now.favorite = designs.favorite)");
        m_sql.run("UPDATE designs SET unsaved = 0 WHERE unsaved = 1");
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
    m_sql.inTransaction([&] {
        QHash<QPair<QString, QString>, Row> rows;
        QSqlQuery read = m_sql.prepare("SELECT hash, path, tags, notes, favorite, present, unsaved"
                                       " FROM designs");
        m_sql.run(read);
        while (read.next()) {
            const UserData design = rowOf(read);
            const bool settled = read.value(5).toBool() && !read.value(6).toBool();
            rows.insert({design.contentHash, design.path}, {design, settled});
        }
        read.finish();

        QSqlQuery forget = m_sql.prepare("DELETE FROM designs WHERE hash = ? AND path = ?");
        QSqlQuery write = m_sql.prepare("INSERT OR REPLACE INTO designs"
                                        " (hash, path, tags, notes, favorite, present, unsaved)"
                                        " VALUES (?, ?, ?, ?, ?, 1, 0)");
        for (const UserData &design : all.designs) {
            const QString hash = notNull(design.contentHash);
            const auto row = rows.find({hash, design.path});
            const bool known = row != rows.end();
            if (design.isEmpty() && known)
                m_sql.run(forget, {hash, design.path});
            else if (!design.isEmpty() &&
                     !(known && row->settled && row->design.saysTheSame(design)))
                m_sql.run(write, {hash, design.path, toText(design.tags), notNull(design.notes),
                                  design.favorite});
            if (known)
                rows.erase(row);
        }
        QSqlQuery wait = m_sql.prepare(
            "UPDATE designs SET present = 0, unsaved = 0 WHERE hash = ? AND path = ?");
        for (const Row &row : qAsConst(rows))
            m_sql.run(row.design.isEmpty() ? forget : wait,
                      {row.design.contentHash, row.design.path});
        writeLists(all);
        writeState(UnsavedLists, false);
        writeState(Catalogue, catalogue);
    });
}

UserDataChanges UserDataDatabase::unsaved()
{
    UserDataChanges changes;
    // Also of what has left since: no catalogue file knows of that.
    QSqlQuery query = m_sql.prepare("SELECT hash, path, tags, notes, favorite FROM designs"
                                    " WHERE unsaved = 1 ORDER BY present, id");
    m_sql.run(query);
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
    const QSet<QString> hashes =
        newcomers.size() > FewNewcomers ? writtenHashes() : QSet<QString>();
    const QByteArray written =
        QByteArray("SELECT hash, path, tags, notes, favorite FROM designs WHERE hash = ? AND ") +
        IsWritten + " ORDER BY path = ? DESC, id DESC LIMIT 1";
    QSqlQuery query = m_sql.prepare(written);
    for (const UserData &newcomer : newcomers) {
        if (newcomers.size() > FewNewcomers && !hashes.contains(newcomer.contentHash))
            continue;
        m_sql.run(query, {notNull(newcomer.contentHash), newcomer.path});
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

/** Of the designs that anything is written to. */
QSet<QString> UserDataDatabase::writtenHashes()
{
    QSet<QString> hashes;
    QSqlQuery query =
        m_sql.prepare(QByteArray("SELECT DISTINCT hash FROM designs WHERE ").append(IsWritten));
    m_sql.run(query);
    while (query.next())
        hashes.insert(query.value(0).toString());
    return hashes;
}

int UserDataDatabase::absentDesigns()
{
    return m_sql
        .value("SELECT COUNT(DISTINCT hash || CASE hash WHEN '' THEN path ELSE '' END)"
               " FROM designs WHERE present = 0"
               " AND hash NOT IN (SELECT hash FROM designs WHERE present = 1)")
        .toInt();
}

void UserDataDatabase::forgetAbsentDesigns()
{
    m_sql.inTransaction([this] { m_sql.run("DELETE FROM designs WHERE present = 0"); });
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
    m_sql.run("DELETE FROM lists WHERE name = ?", {name});
    QSqlQuery write = m_sql.prepare("INSERT INTO lists (name, position, entry) VALUES (?, ?, ?)");
    for (int i = 0; i < entries.size(); ++i)
        m_sql.run(write, {name, i, notNull(entries.at(i))});
}

QStringList UserDataDatabase::list(const QString &name)
{
    QStringList entries;
    QSqlQuery query = m_sql.prepare("SELECT entry FROM lists WHERE name = ? ORDER BY position");
    m_sql.run(query, {name});
    while (query.next())
        entries.append(query.value(0).toString());
    return entries;
}

void UserDataDatabase::writeState(const QString &key, const QVariant &state)
{
    m_sql.run("INSERT OR REPLACE INTO state (key, value) VALUES (?, ?)", {key, state});
}

QVariant UserDataDatabase::state(const QString &key)
{
    return m_sql.value("SELECT value FROM state WHERE key = ?", {key});
}
