#pragma once

#include <QString>

/** One value of an enumeration; the number takes no part in comparisons. */
struct PropertyEnumElement
{
    PropertyEnumElement() = default;
    PropertyEnumElement(const QString &elementName, const QString &displayName)
        : elementName(elementName), displayName(displayName)
    {
    }

    /** The stable key that is written to files. */
    QString elementName;
    /** What the user sees. */
    QString displayName;
    qint32 number = -1;
};

inline bool operator==(const PropertyEnumElement &a, const PropertyEnumElement &b)
{
    return a.elementName == b.elementName && a.displayName == b.displayName;
}

inline bool operator!=(const PropertyEnumElement &a, const PropertyEnumElement &b)
{
    return !(a == b);
}
