#pragma once

#include <optional>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <vector>

class IFile;

/** What designs are put in order by, and which way. */
struct SortOrder
{
    enum Key {
        Name,     ///< the natural order of the paths
        Size,     ///< the area of the design
        Stitches, ///< how many
        Colors,   ///< how many threads
        Date,     ///< of the file
        Folder,   ///< the folders in natural order, one after the other
    };

    Key key = Name;
    bool descending = false;

    /** From the form "stitches" or "stitches:desc"; nothing when @p text has another form. */
    static std::optional<SortOrder> fromText(const QString &text);
    QString toText() const;

    /** The words for the keys, in the order of Key. */
    static QStringList keyNames();

    /**
     * @p byName, which is in natural order of the paths, in this order, as indexes in it. What
     * is equal stays in natural order; what isn't known comes last, whichever the way.
     */
    std::vector<int> order(const QList<QSharedPointer<IFile>> &byName) const;

    bool operator==(const SortOrder &other) const
    {
        return key == other.key && descending == other.descending;
    }
};
