#pragma once

#include "base/Error.h"
#include "cli/ExitStatus.h"

/** Ends a command with a status of its own. */
class CommandError : public Error
{
public:
    CommandError(ExitStatus status, const QString &message) : Error(message), m_status(status) {}

    ExitStatus status() const { return m_status; }

private:
    ExitStatus m_status;
};

/** The command line was wrong; the usage is told with the message. */
class UsageError : public CommandError
{
public:
    explicit UsageError(const QString &message) : CommandError(WrongUsage, message) {}
};
