#include "cli/ConsoleProgress.h"

#include "cli/Console.h"
#include "cli/Interrupt.h"
#include "cli/TextWidth.h"
#include <algorithm>
#include <cstdio>

namespace {

constexpr int BarWidth = 24;
constexpr qint64 MillisecondsBetweenDraws = 100;
constexpr int Aborted = 2;

} // namespace

ConsoleProgress::ConsoleProgress() : m_visible(Console::errorIsTerminal()) {}

ConsoleProgress::~ConsoleProgress()
{
    clear();
}

void ConsoleProgress::setSteps(int count)
{
    m_steps = count;
    m_value = 0;
}

void ConsoleProgress::proceed(const QString &text)
{
    m_value = std::min(m_value + 1, m_steps);
    if (!m_visible)
        return;
    if (m_lastDrawn.isValid() && m_lastDrawn.elapsed() < MillisecondsBetweenDraws)
        return;
    m_lastDrawn.start();
    draw(text);
}

int ConsoleProgress::abortState() const
{
    return Interrupt::received() != 0 ? Aborted : 0;
}

void ConsoleProgress::draw(const QString &text)
{
    const int share = m_steps > 0 ? int(qint64(m_value) * 100 / m_steps) : 0;
    const int filled = share * BarWidth / 100;
    QString line = QStringLiteral("[%1%2] %3% ")
                       .arg(QString(filled, QLatin1Char('#')))
                       .arg(QString(BarWidth - filled, QLatin1Char('.')))
                       .arg(share, 3);
    line = TextWidth::cut(line + Console::printable(text), Console::terminalWidth() - 1);
    std::fputs(("\r" + line.toUtf8() + "\033[K").constData(), stderr);
    std::fflush(stderr);
    m_drawn = true;
}

void ConsoleProgress::clear()
{
    if (!m_drawn)
        return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    m_drawn = false;
}
