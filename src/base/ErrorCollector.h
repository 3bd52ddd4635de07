#pragma once

#include "base/Error.h"

#include <QList>
#include <QMutex>

/** Gathers errors on a worker thread until the main thread takes them. Thread-safe. */
class ErrorCollector
{
public:
    void addError(const Error &error);

    /** True while errors wait to be taken. */
    bool hasErrors() const;

    /** Hands over what was gathered and starts afresh. */
    QList<Error> takeCollectedErrors();

private:
    QList<Error> m_errors;
    mutable QMutex m_mutex;
    bool m_waiting = false;
};
