#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QSharedPointer>
#include <QTimer>
#include <QWidget>

class GAction;
class Playback;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QToolButton;
class SewingSlider;

/** The controls of a playback: step, play, the slider of the sewing and the speed. */
class PlaybackBar : public QWidget
{
    Q_OBJECT

public:
    /** @p playback is not owned and must outlive the bar */
    explicit PlaybackBar(Playback *playback, QWidget *parent = nullptr);

    void setDesign(const QSharedPointer<const SewingOrder> &order);
    SewingSlider *slider() const { return m_slider; }

private:
    void createButtons(QHBoxLayout *layout);
    void createSpeeds();
    QToolButton *addButton(QHBoxLayout *layout, GAction *action);
    void showPosition(int position);
    void showPlaying(bool playing);
    void describePosition();

    Playback *m_playback;
    GAction *m_playAction = nullptr;
    SewingSlider *m_slider;
    QLabel *m_position;
    QComboBox *m_speeds;
    QSharedPointer<const SewingOrder> m_order;
    QTimer m_toSpeak; ///< until a position that is stepped to is read out
};
