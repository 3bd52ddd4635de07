#pragma once

#include <optional>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

/** What a person has written to one design, and which design it is. */
struct UserData
{
    QString contentHash; ///< lower-case hexadecimal digits; empty for a file never read
    QString path;        ///< absolute
    QStringList tags;
    QString notes;
    bool favorite = false;

    bool isEmpty() const { return !favorite && notes.isEmpty() && tags.isEmpty(); }

    /** Whether the same was written, be it to the same design or not. */
    bool saysTheSame(const UserData &other) const
    {
        return favorite == other.favorite && notes == other.notes && tags == other.tags;
    }
};

/** What has changed in a catalogue, or all that is in it. */
struct UserDataChanges
{
    QVector<UserData> designs; ///< as they are now, those that have lost all they had included
    QStringList gone;          ///< paths of designs that have left the catalogue
    std::optional<QStringList> allTags;
    std::optional<QStringList> smartFolders;

    bool isEmpty() const
    {
        return designs.isEmpty() && gone.isEmpty() && !allTags && !smartFolders;
    }
};

// The store tells of it on its own thread.
Q_DECLARE_METATYPE(UserDataChanges)
