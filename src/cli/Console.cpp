#include "cli/Console.h"

#include <algorithm>
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

bool isTerminal(FILE *file)
{
#ifdef Q_OS_UNIX
    return isatty(fileno(file));
#elif defined(Q_OS_WIN)
    return _isatty(_fileno(file));
#else
    return false;
#endif
}

bool isBetween(QChar c, ushort first, ushort last)
{
    return c.unicode() >= first && c.unicode() <= last;
}

} // namespace

StandardOutput::StandardOutput() : m_isTerminal(::isTerminal(stdout))
{
    if (!m_file.open(stdout, QIODevice::WriteOnly))
        fail();
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

void StandardOutput::writeEntry(const QString &text, bool nullSeparated)
{
    const QString shown = m_isTerminal ? Console::printable(text) : text;
    write(shown.toUtf8() + (nullSeparated ? '\0' : '\n'));
}

void StandardOutput::writeRemark(const QString &line)
{
    if (m_isTerminal)
        writeLine(line);
    else
        Console::remark(line);
}

bool StandardOutput::flush()
{
    if (!m_failed && !m_pending.isEmpty() &&
        (m_file.write(m_pending) != m_pending.size() || !m_file.flush()))
        fail();
    m_pending.clear();
    return !m_failed;
}

void StandardOutput::fail()
{
    m_failed = true;
    Console::reportError(tr("The output could not be written: %1").arg(m_file.errorString()));
}

void Console::reportError(const QString &message)
{
    remark(QStringLiteral("hoopline-cli: ") + printable(message));
}

void Console::remark(const QString &line)
{
    std::fputs((line + QLatin1Char('\n')).toUtf8().constData(), stderr);
}

bool Console::isUnprintable(QChar c)
{
    constexpr ushort arabicLetterMark = 0x061C;
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator || c.unicode() == arabicLetterMark ||
           isBetween(c, 0x200E, 0x200F) || isBetween(c, 0x202A, 0x202E) ||
           isBetween(c, 0x2066, 0x2069);
}

QString Console::printable(QString text)
{
    std::replace_if(text.begin(), text.end(), isUnprintable, QChar(QChar::ReplacementCharacter));
    return text;
}

bool Console::errorIsTerminal()
{
    return isTerminal(stderr);
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
