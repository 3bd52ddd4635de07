#pragma once

#include "base/Error.h"

#include <QList>

/** An error at a place in a file. */
class FileError : public Error
{
public:
    /** @param line counts from 1; 0 or less stands for no line and is not shown */
    FileError(const QString &message, const QString &fileName, int line);

    /** Takes over the text of @p error and remembers its dynamic type. */
    FileError(const Error &error, const QString &fileName, int line);

    /** Class name of the error that this one was made of; empty when made of a message. */
    QString errorType() const { return m_errorType; }
    QString errorMessage() const { return m_errorMessage; }
    QString fileName() const { return m_fileName; }
    int lineNumber() const { return m_lineNumber; }

private:
    QString m_errorType;
    QString m_errorMessage;
    QString m_fileName;
    int m_lineNumber;
};

/** Several errors in files; toString() holds one line for each. */
class FileErrorList : public Error
{
public:
    explicit FileErrorList(const QList<FileError> &errors);

    const QList<FileError> &errorList() const { return m_errors; }
    QString toString() const override;

private:
    QList<FileError> m_errors;
};
