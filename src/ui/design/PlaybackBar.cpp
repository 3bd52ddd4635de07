#include "ui/design/PlaybackBar.h"

#include "app/frame/GAction.h"
#include "catalogue/records/DesignTexts.h"
#include "ui/design/Playback.h"
#include "ui/design/SewingSlider.h"
#include "widgets/controls/ScreenReader.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/WidgetStyles.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

namespace {

constexpr int Speeds[] = {10, 50, 100, 250, 500, 1000, 2500, 5000, 10000};
constexpr int ButtonIconSize = 24;
constexpr int Margin = 10;
constexpr int SpeakAfter = 300; // milliseconds; a held key steps faster

GIcon icon(const char *name)
{
    return GIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

} // namespace

PlaybackBar::PlaybackBar(Playback *playback, QWidget *parent)
    : QWidget(parent), m_playback(playback), m_slider(new SewingSlider(this)),
      m_position(new QLabel(this)), m_speeds(new QComboBox(this))
{
    m_toSpeak.setSingleShot(true);
    m_toSpeak.setInterval(SpeakAfter);
    connect(&m_toSpeak, &QTimer::timeout, this,
            [this] { ScreenReader::say(window(), m_slider->accessibleDescription()); });
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, Margin / 2, Margin, Margin / 2);
    createButtons(layout);
    layout->addSpacing(Margin / 2);
    layout->addWidget(m_slider, 1);
    layout->addSpacing(Margin / 2);
    layout->addWidget(m_position);
    layout->addSpacing(Margin / 2);
    layout->addWidget(m_speeds);
    createSpeeds();
    m_position->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_slider, &QSlider::valueChanged, m_playback, &Playback::setPosition);
    connect(m_playback, &Playback::positionChanged, this, &PlaybackBar::showPosition);
    connect(m_playback, &Playback::playingChanged, this, &PlaybackBar::showPlaying);
    setDesign({});
}

void PlaybackBar::createButtons(QHBoxLayout *layout)
{
    auto *back = new GAction(icon("stepBack"), tr("One stitch back"), this);
    back->setShortcut(Qt::Key_Comma);
    back->setToolTip(tr("One stitch back (comma)"));
    connect(back, &QAction::triggered, m_playback, &Playback::stepBack);
    m_playAction = new GAction(icon("play"), tr("Play"), this);
    connect(m_playAction, &QAction::triggered, m_playback, &Playback::togglePlaying);
    auto *forward = new GAction(icon("stepForward"), tr("One stitch forward"), this);
    forward->setShortcut(Qt::Key_Period);
    forward->setToolTip(tr("One stitch forward (period)"));
    connect(forward, &QAction::triggered, m_playback, &Playback::stepForward);
    for (GAction *action : {back, m_playAction, forward})
        setTabOrder(addButton(layout, action), m_slider);
    setTabOrder(m_slider, m_speeds);
    showPlaying(false);
}

QToolButton *PlaybackBar::addButton(QHBoxLayout *layout, GAction *action)
{
    auto *button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setIconSize(QSize(ButtonIconSize, ButtonIconSize));
    button->setFocusPolicy(Qt::TabFocus);
    button->setStyleSheet(WidgetStyles::ToolButton_FlatStyle());
    layout->addWidget(button);
    return button;
}

void PlaybackBar::createSpeeds()
{
    for (const int speed : Speeds)
        m_speeds->addItem(tr("%1 stitches/s").arg(DesignTexts::number(speed)), speed);
    m_speeds->setCurrentIndex(m_speeds->findData(m_playback->speed()));
    m_speeds->setAccessibleName(tr("Speed"));
    m_speeds->setAccessibleDescription(tr("Speed"));
    m_speeds->setToolTip(tr("Speed"));
    connect(m_speeds, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this] { m_playback->setSpeed(m_speeds->currentData().toInt()); });
}

void PlaybackBar::setDesign(const QSharedPointer<const SewingOrder> &order)
{
    const QSignalBlocker blocker(m_slider);
    m_order = order;
    m_slider->setDesign(order);
    m_playback->setPointCount(order ? order->pointCount() : 0);
    // As wide as it gets, so that nothing moves while it plays.
    const QString widest = tr("%1 of %2")
                               .arg(DesignTexts::number(m_playback->pointCount()),
                                    DesignTexts::number(m_playback->pointCount()));
    m_position->setMinimumWidth(m_position->fontMetrics().horizontalAdvance(widest));
    showPosition(m_playback->position());
    setEnabled(!order.isNull());
    m_toSpeak.stop();
}

void PlaybackBar::showPosition(int position)
{
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(position);
    m_position->setText(
        tr("%1 of %2")
            .arg(DesignTexts::number(position), DesignTexts::number(m_playback->pointCount())));
    // While it plays nobody could listen as fast.
    if (!m_playback->isPlaying())
        describePosition();
}

void PlaybackBar::describePosition()
{
    QStringList words{m_position->text()};
    const int sewn = m_playback->position();
    if (const int use = m_order && sewn > 0 ? m_order->useAt(sewn - 1) : -1; use >= 0)
        words.append(m_order->threadUses().at(use).thread->getDescription());
    words.removeAll(QString());
    m_slider->setAccessibleDescription(words.join(QStringLiteral(", ")));
    m_toSpeak.start();
}

void PlaybackBar::showPlaying(bool playing)
{
    m_playAction->setIcon(icon(playing ? "pause" : "play"));
    m_playAction->setText(playing ? tr("Pause") : tr("Play"));
    m_playAction->setToolTip(tr("%1 (Space)").arg(m_playAction->text()));
    if (!playing)
        describePosition();
}
