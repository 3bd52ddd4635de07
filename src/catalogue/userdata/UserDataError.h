#pragma once

#include "base/Error.h"

/** The store could not do what it was asked to. */
class UserDataError : public Error
{
public:
    enum Kind {
        Failed,  ///< for now, as on a full disk
        Damaged, ///< the file is no whole store
        Newer    ///< a later version of the program made it
    };

    UserDataError(const QString &message, Kind kind) : Error(message), m_kind(kind) {}

    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};
