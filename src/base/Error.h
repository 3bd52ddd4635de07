#pragma once

#include <exception>
#include <QString>

/**
 * Something could not be done. Thrown by value and caught by reference.
 * toString() is the text for the user; what() says nothing useful.
 */
class Error : public std::exception
{
public:
    explicit Error(const QString &message);

    /** The message, translated and fit for the user. */
    virtual QString toString() const;

private:
    QString m_message;
};

/** No memory is left; telling so takes none. */
class OutOfMemoryError : public Error
{
public:
    OutOfMemoryError();

    QString toString() const override;

    /** Made at program start, so that nothing is allocated when memory is gone. */
    static QString mOutOfMemory;
};

/** What was given or asked for is of another type. */
class ErrorTypeConflict : public Error
{
public:
    explicit ErrorTypeConflict(const QString &message);
};

/** There is nothing of this name. */
class ErrorDoesNotExist : public Error
{
public:
    explicit ErrorDoesNotExist(const QString &message);
};

/** The name is taken. */
class ErrorAlreadyExists : public Error
{
public:
    explicit ErrorAlreadyExists(const QString &message);
};

/** Unwinds a cancelled operation; its starter treats it as a normal end. */
class AbortException : public Error
{
public:
    AbortException();
};
