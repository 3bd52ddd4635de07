#pragma once

#include <memory>
#include <QObject>

class QSocketNotifier;

/**
 * Tells of the signals by which the system asks a process to end: SIGTERM, SIGINT and
 * SIGHUP. They end nothing by themselves while this object lives. Those that are ignored
 * already, as nohup has it, stay so. At most one at a time; main thread.
 *
 * Also sees to it that a reader who has gone away, of the log for instance, ends nobody.
 */
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

signals:
    /** One of them has come; from the event loop. */
    void received();

private:
    void readSignals();

    std::unique_ptr<QSocketNotifier> m_notifier;
};
