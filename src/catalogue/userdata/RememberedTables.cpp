#include "catalogue/userdata/RememberedTables.h"

#include "catalogue/userdata/UserDataConnection.h"
#include "catalogue/userdata/UserDataError.h"

namespace {

/** A null string would be stored as NULL. */
QString notNull(const QString &text)
{
    return text.isNull() ? QLatin1String("") : text;
}

} // namespace

void RememberedTables::create()
{
    m_sql.run("CREATE TABLE IF NOT EXISTS searches (name TEXT PRIMARY KEY, query TEXT NOT NULL)");
    m_sql.run("CREATE TABLE IF NOT EXISTS remembered (key TEXT PRIMARY KEY, value TEXT NOT NULL)");
}

Remembered RememberedTables::all()
{
    Remembered remembered;
    readSearches(remembered);
    readValues(remembered);
    return remembered;
}

void RememberedTables::readSearches(Remembered &remembered)
{
    // Along the rows as they lie: what comes ahead of a damaged page is found.
    QSqlQuery query = m_sql.prepare("SELECT name, query FROM searches ORDER BY rowid");
    m_sql.run(query);
    while (m_sql.next(query))
        remembered.searches.written.append({query.value(0).toString(), query.value(1).toString()});
}

void RememberedTables::readValues(Remembered &remembered)
{
    QSqlQuery query = m_sql.prepare("SELECT key, value FROM remembered ORDER BY rowid");
    m_sql.run(query);
    while (m_sql.next(query))
        remembered.values.insert(query.value(0).toString(), query.value(1).toString());
}

void RememberedTables::write(const Remembered &edits)
{
    m_sql.inTransaction([&] {
        QSqlQuery remove = m_sql.prepare("DELETE FROM searches WHERE name = ?");
        for (const QString &name : edits.searches.removed)
            m_sql.run(remove, {name});
        QSqlQuery write =
            m_sql.prepare("INSERT OR REPLACE INTO searches (name, query) VALUES (?, ?)");
        for (const SavedSearch &search : edits.searches.written)
            m_sql.run(write, {notNull(search.name), notNull(search.query)});
        QSqlQuery set =
            m_sql.prepare("INSERT OR REPLACE INTO remembered (key, value) VALUES (?, ?)");
        for (auto it = edits.values.cbegin(); it != edits.values.cend(); ++it)
            m_sql.run(set, {it.key(), notNull(it.value())});
    });
}

Remembered RememberedTables::salvage(const QString &path)
{
    Remembered remembered;
    for (const auto read : {&RememberedTables::readSearches, &RememberedTables::readValues}) {
        try {
            UserDataConnection sql(path, UserDataConnection::ReadWhatIsLeft);
            (RememberedTables(sql).*read)(remembered);
        } catch (const UserDataError &) {
            // What was read until then is all there is.
        }
    }
    return remembered;
}
