#pragma once

#include <QLocalServer>
#include <QSharedMemory>

/** Stands in for a running organiser: recorded in the shared block, answering on its socket. */
class FakeOrganiser
{
public:
    FakeOrganiser();
    bool start();
    /** As after a kill: still recorded, but nobody answers. */
    void stopAnswering() { m_server.close(); }

private:
    QString m_name;
    QSharedMemory m_block;
    QLocalServer m_server;
};
