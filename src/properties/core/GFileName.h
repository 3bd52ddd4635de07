#pragma once

#include <QString>

/** The path of one file, as a type of its own. */
class GFileName
{
public:
    GFileName() = default;
    GFileName(const QString &path) : m_path(path) {}

    const QString &path() const { return m_path; }

private:
    QString m_path;
};

inline bool operator==(const GFileName &a, const GFileName &b)
{
    return a.path() == b.path();
}

inline bool operator!=(const GFileName &a, const GFileName &b)
{
    return !(a == b);
}
