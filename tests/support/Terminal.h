#pragma once

#include <cstdlib>
#include <fcntl.h>
#include <QByteArray>
#include <QString>
#include <unistd.h>

/** A pseudo-terminal that a process writes to, and that keeps what it writes, up to some KB. */
class Terminal
{
public:
    Terminal() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        m_valid = m_master >= 0 && grantpt(m_master) == 0 && unlockpt(m_master) == 0;
    }
    ~Terminal()
    {
        if (m_master >= 0)
            close(m_master);
    }

    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /** False where there are no pseudo-terminals. */
    bool isValid() const { return m_valid; }
    /** What a process is to open as its output. */
    QString name() const { return QString::fromLocal8Bit(ptsname(m_master)); }

    /** What was shown so far. To be read when the process has ended. */
    QByteArray read() const
    {
        QByteArray shown;
        char piece[4096];
        for (ssize_t count = 0; (count = ::read(m_master, piece, sizeof piece)) > 0;)
            shown.append(piece, int(count));
        return shown;
    }

private:
    int m_master;
    bool m_valid = false;
};
