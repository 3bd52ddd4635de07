#include "ui/design/Playback.h"

namespace {

constexpr int TickMilliseconds = 16;
constexpr int MillisecondsPerSecond = 1000;
// After a pause of the whole program, the sewing goes on where it was.
constexpr qint64 LongestTick = 250;

} // namespace

Playback::Playback(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(TickMilliseconds);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Playback::tick);
}

void Playback::setPointCount(int count)
{
    setPlaying(false);
    m_pointCount = count;
    m_position = count;
    emit positionChanged(m_position);
}

void Playback::setSpeed(int pointsPerSecond)
{
    m_speed = pointsPerSecond;
}

void Playback::tick()
{
    advance(qMin(m_clock.restart(), LongestTick));
}

void Playback::advance(qint64 milliseconds)
{
    m_rest += milliseconds * m_speed;
    const qint64 points = m_rest / MillisecondsPerSecond;
    m_rest %= MillisecondsPerSecond;
    setPosition(int(qMin<qint64>(m_position + points, m_pointCount)));
}

void Playback::setPosition(int position)
{
    const int bounded = qBound(0, position, m_pointCount);
    if (bounded != m_position) {
        m_position = bounded;
        emit positionChanged(bounded);
    }
    if (isComplete())
        setPlaying(false);
}

void Playback::setPlaying(bool playing)
{
    if (playing == isPlaying() || (playing && m_pointCount == 0))
        return;
    if (playing && isComplete())
        setPosition(0);
    m_rest = 0;
    m_clock.start();
    if (playing)
        m_timer.start();
    else
        m_timer.stop();
    emit playingChanged(playing);
}

void Playback::togglePlaying()
{
    setPlaying(!isPlaying());
}

void Playback::stepForward()
{
    setPlaying(false);
    setPosition(m_position + 1);
}

void Playback::stepBack()
{
    setPlaying(false);
    setPosition(m_position - 1);
}
