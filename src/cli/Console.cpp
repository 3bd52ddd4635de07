#include "cli/Console.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <unistd.h>
#elif defined(Q_OS_WIN)
#include <io.h>
#endif

namespace {

constexpr int PieceSize = 64 * 1024;
constexpr int DefaultWidth = 80;

} // namespace

StandardOutput::StandardOutput()
{
    m_failed = !m_file.open(stdout, QIODevice::WriteOnly);
}

void StandardOutput::write(const QByteArray &bytes)
{
    m_pending += bytes;
    if (m_pending.size() >= PieceSize)
        flush();
}

void StandardOutput::writeLine(const QString &line)
{
    write(line.toUtf8() + '\n');
}

bool StandardOutput::flush()
{
    if (!m_failed && !m_pending.isEmpty())
        m_failed = m_file.write(m_pending) != m_pending.size() || !m_file.flush();
    m_pending.clear();
    return !m_failed;
}

void Console::reportError(const QString &message)
{
    const QByteArray line = "hoopline-cli: " + printable(message).toUtf8() + '\n';
    std::fputs(line.constData(), stderr);
}

QString Console::printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

bool Console::errorIsTerminal()
{
#ifdef Q_OS_UNIX
    return isatty(STDERR_FILENO);
#elif defined(Q_OS_WIN)
    return _isatty(_fileno(stderr));
#else
    return false;
#endif
}

int Console::terminalWidth()
{
#ifdef Q_OS_UNIX
    winsize size;
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
#endif
    return DefaultWidth;
}
