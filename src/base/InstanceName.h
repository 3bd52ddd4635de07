#pragma once

#include <QString>
#include <QStringList>

/**
 * The name by which the processes of one program find each other: the key of
 * their shared-memory block and the name of the primary's local server. Two
 * processes compute the same name exactly when all fields are equal; a field
 * that is left empty takes no part.
 */
struct InstanceName
{
    QString applicationName;
    QString organisationName;
    QString organisationDomain;
    QString applicationVersion;
    QString applicationFilePath;
    QString userName;

    /** The SHA-256 of the fields in Base64, with "_" for "/": 44 characters. */
    QString toString() const;

    /**
     * Where a local server of the name @p name may be found, the first place first: in
     * the folder for temporary files, and in the user's runtime folder, if there is one,
     * for when the first takes no socket.
     */
    static QStringList socketPaths(const QString &name);

    /** The login name of the effective user; "USER" of the environment where there is none. */
    static QString currentUser();
};
