#pragma once

#include <memory>
#include <QDateTime>
#include <QDir>
#include <QStringList>

/** Where one platform keeps the crash logs of the program. */
class GCrashLogCollectorImpl
{
public:
    virtual ~GCrashLogCollectorImpl() = default;

    /** The full text of every log that is not older than @p since. */
    virtual QStringList logsSince(const QDateTime &since) const = 0;

protected:
    /** The texts of the program's logs in @p directory; what cannot be read is passed over. */
    QStringList collectLogs(const QDir &directory, const QDateTime &since) const;
};

/** Finds the logs of earlier crashes. Main thread only. */
class GCrashLogCollector
{
public:
    GCrashLogCollector();
    ~GCrashLogCollector();

    QStringList logsSince(const QDateTime &since) const;

    /** The logs since this was last called, by any process of the user; none at the first time. */
    QStringList logsSinceLastCheck() const;

private:
    std::unique_ptr<GCrashLogCollectorImpl> m_impl;
};
