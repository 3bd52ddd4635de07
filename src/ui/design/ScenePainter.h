#pragma once

#include "ui/design/DesignPicture.h"

#include <atomic>
#include <QObject>

/** What DesignRenderer has in its thread: draws scenes, one after the other. */
class ScenePainter : public QObject
{
    Q_OBJECT

public:
    /** For the thread that asks: scenes of older numbers than the latest are passed over. */
    int nextNumber() { return ++m_latest; }
    /** Also from the thread that asks: nothing is drawn any more. */
    void cancel() { m_cancelled = true; }

public slots:
    void paint(const DesignScene &scene, int number);

signals:
    void painted(const DesignPicture &picture);

private:
    bool draw(const DesignScene &scene);

    std::atomic<int> m_latest{0};
    std::atomic<bool> m_cancelled{false};
    // Of what is played back, only what is new is drawn.
    DesignPicture m_last;
};
