#pragma once

#include "ui/design/DesignPicture.h"

#include <atomic>
#include <QObject>
#include <QThread>

class ScenePainter;

/**
 * Draws designs in a thread of its own. Only the latest scene that was asked for is
 * drawn: whoever asks faster than it can draw gets fewer pictures, and none late.
 */
class DesignRenderer : public QObject
{
    Q_OBJECT

public:
    explicit DesignRenderer(QObject *parent = nullptr);
    /** Gives up what is being drawn. */
    ~DesignRenderer() override;

    /** Answered by rendered(), unless another scene is asked for before its turn comes. */
    void request(const DesignScene &scene);

signals:
    void rendered(const DesignPicture &picture);

private:
    QThread m_thread;
    ScenePainter *m_painter;
};
