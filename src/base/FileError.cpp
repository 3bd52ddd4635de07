#include "base/FileError.h"

#include <QStringList>

namespace {

QString located(const QString &message, const QString &fileName, int line)
{
    if (line >= 1)
        return fileName + QLatin1Char(':') + QString::number(line) + QStringLiteral(": ") + message;
    return fileName + QStringLiteral(": ") + message;
}

QString typeName(const Error &error)
{
    if (dynamic_cast<const OutOfMemoryError *>(&error))
        return QStringLiteral("OutOfMemoryError");
    if (dynamic_cast<const ErrorTypeConflict *>(&error))
        return QStringLiteral("ErrorTypeConflict");
    if (dynamic_cast<const ErrorDoesNotExist *>(&error))
        return QStringLiteral("ErrorDoesNotExist");
    if (dynamic_cast<const ErrorAlreadyExists *>(&error))
        return QStringLiteral("ErrorAlreadyExists");
    if (dynamic_cast<const FileError *>(&error))
        return QStringLiteral("FileError");
    if (dynamic_cast<const FileErrorList *>(&error))
        return QStringLiteral("FileErrorList");
    return QStringLiteral("Error");
}

} // namespace

FileError::FileError(const QString &message, const QString &fileName, int line)
    : Error(located(message, fileName, line)), m_errorMessage(message), m_fileName(fileName),
      m_lineNumber(line)
{
}

FileError::FileError(const Error &error, const QString &fileName, int line)
    : Error(located(error.toString(), fileName, line)), m_errorType(typeName(error)),
      m_errorMessage(error.toString()), m_fileName(fileName), m_lineNumber(line)
{
}

FileErrorList::FileErrorList(const QList<FileError> &errors)
    : Error(QStringLiteral("errors in multiple files occured")), m_errors(errors)
{
}

QString FileErrorList::toString() const
{
    QStringList texts;
    for (const FileError &error : m_errors)
        texts.append(error.toString());
    return texts.join(QLatin1Char('\n'));
}
