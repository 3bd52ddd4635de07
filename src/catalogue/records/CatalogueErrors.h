#pragma once

#include "base/Error.h"

/**
 * The file of the catalogue cannot be used for now, or not by this version of the
 * program. What is in it is none of our business then: it is left alone.
 */
class CatalogueUnusableError : public Error
{
public:
    using Error::Error;
};

/** The folder that the catalogue should lie in is missing in a way that it once was there. */
class CatalogueFolderMissingError : public CatalogueUnusableError
{
public:
    using CatalogueUnusableError::CatalogueUnusableError;
};

/** The file of the catalogue was read, and holds no whole catalogue. */
class CatalogueDamagedError : public Error
{
public:
    using Error::Error;
};

/** The catalogue could not be written. Its file is as it was. */
class CatalogueUnsavedError : public Error
{
public:
    /** @param reason the part of @p message that tells why, for where the rest is known */
    CatalogueUnsavedError(const QString &message, const QString &reason)
        : Error(message), m_reason(reason)
    {
    }

    QString reason() const { return m_reason; }

private:
    QString m_reason;
};
