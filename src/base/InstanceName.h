#pragma once

#include <QString>

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

    /** The login name of the effective user; "USER" of the environment where there is none. */
    static QString currentUser();
};
