#include "base/Error.h"

QString OutOfMemoryError::mOutOfMemory = QStringLiteral("Out of memory");

Error::Error(const QString &message) : m_message(message) {}

QString Error::toString() const
{
    return m_message;
}

OutOfMemoryError::OutOfMemoryError() : Error(mOutOfMemory) {}

QString OutOfMemoryError::toString() const
{
    return mOutOfMemory;
}

ErrorTypeConflict::ErrorTypeConflict(const QString &message) : Error(message) {}

ErrorDoesNotExist::ErrorDoesNotExist(const QString &message) : Error(message) {}

ErrorAlreadyExists::ErrorAlreadyExists(const QString &message) : Error(message) {}

AbortException::AbortException() : Error(QStringLiteral("Aborting")) {}
