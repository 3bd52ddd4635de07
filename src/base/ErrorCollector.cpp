#include "base/ErrorCollector.h"

#include <QMutexLocker>

void ErrorCollector::addError(const Error &error)
{
    QMutexLocker lock(&m_mutex);
    m_errors.append(error);
    m_waiting = true;
}

bool ErrorCollector::hasErrors() const
{
    QMutexLocker lock(&m_mutex);
    return m_waiting;
}

QList<Error> ErrorCollector::takeCollectedErrors()
{
    QMutexLocker lock(&m_mutex);
    QList<Error> taken;
    taken.swap(m_errors);
    m_waiting = false;
    return taken;
}
