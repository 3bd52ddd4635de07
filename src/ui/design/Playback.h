#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/** How far the sewing of a design has come, and the clock that carries it on. */
class Playback : public QObject
{
    Q_OBJECT

public:
    explicit Playback(QObject *parent = nullptr);

    /** Begins with another design of so many points, all of which are sewn. */
    void setPointCount(int count);
    int pointCount() const { return m_pointCount; }

    /** How many points are sewn, from none to all of them. */
    int position() const { return m_position; }
    bool isPlaying() const { return m_timer.isActive(); }
    bool isComplete() const { return m_position == m_pointCount; }

    /** Points in a second. */
    int speed() const { return m_speed; }
    void setSpeed(int pointsPerSecond);

    /** Lets so much time pass; the clock does it while the sewing plays. */
    void advance(qint64 milliseconds);

    static constexpr int DefaultSpeed = 500;

public slots:
    /** Leaves it playing or not; at the end it stops. */
    void setPosition(int position);
    /** A finished design begins anew. */
    void setPlaying(bool playing);
    void togglePlaying();
    /** Stop the playing and go by one point. */
    void stepForward();
    void stepBack();

signals:
    void positionChanged(int position);
    void playingChanged(bool playing);

private:
    void tick();

    int m_pointCount = 0;
    int m_position = 0;
    int m_speed = DefaultSpeed;
    // What is left over of time that was too short for a point, in thousandths of one.
    qint64 m_rest = 0;
    QTimer m_timer;
    QElapsedTimer m_clock;
};
