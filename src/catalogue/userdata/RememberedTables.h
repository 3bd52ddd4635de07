#pragma once

#include "catalogue/userdata/Remembered.h"

class UserDataConnection;

/** The tables of saved searches and of values. All throw UserDataError but for salvage(). */
class RememberedTables
{
public:
    /** @param sql must outlive this */
    explicit RememberedTables(UserDataConnection &sql) : m_sql(sql) {}

    void create();
    Remembered all();
    void write(const Remembered &edits);

    /** What can still be read of a damaged file. */
    static Remembered salvage(const QString &path);

private:
    void readSearches(Remembered &remembered);
    void readValues(Remembered &remembered);

    UserDataConnection &m_sql;
};
