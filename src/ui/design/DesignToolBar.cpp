#include "ui/design/DesignToolBar.h"

#include "app/frame/GAction.h"
#include "base/GlobalSettings.h"
#include "catalogue/records/DesignTexts.h"
#include "ui/design/DesignView.h"
#include "ui/design/FabricButton.h"
#include "widgets/style/GIcon.h"

#include <cmath>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int IconSize = 24;
constexpr int ZoomSliderWidth = 130;
// The slider's steps are as fine over the whole range: it is the logarithm that is even.
constexpr int ZoomSliderSteps = 200;

GIcon icon(const char *name)
{
    return GIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

int sliderValue(double zoom)
{
    const double share = std::log(zoom / DesignViewport::LeastZoom) /
                         std::log(DesignViewport::GreatestZoom / DesignViewport::LeastZoom);
    return qRound(share * ZoomSliderSteps);
}

double zoomOf(int sliderValue)
{
    return DesignViewport::LeastZoom *
           std::pow(DesignViewport::GreatestZoom / DesignViewport::LeastZoom,
                    double(sliderValue) / ZoomSliderSteps);
}

} // namespace

DesignToolBar::DesignToolBar(DesignView *view, QWidget *parent)
    : GToolBar(tr("Toolbar"), parent), m_view(view)
{
    setIconSize(QSize(::IconSize, ::IconSize));
    createNavigation();
    createZoom();
    createAppearance();
    connect(m_view, &DesignView::zoomChanged, this, &DesignToolBar::showZoom);
    showZoom(m_view->zoom());
}

void DesignToolBar::createNavigation()
{
    m_previousAction = new GAction(icon("previous"), tr("Previous design"), this);
    m_previousAction->setShortcuts(QKeySequence::Back);
    m_previousAction->setToolTip(tr("Previous design (Left)"));
    connect(m_previousAction, &QAction::triggered, this, &DesignToolBar::previousRequested);
    m_nextAction = new GAction(icon("next"), tr("Next design"), this);
    m_nextAction->setShortcuts(QKeySequence::Forward);
    m_nextAction->setToolTip(tr("Next design (Right)"));
    connect(m_nextAction, &QAction::triggered, this, &DesignToolBar::nextRequested);
    m_place = new QLabel(this);
    addAction(m_previousAction);
    addAction(m_nextAction);
    addWidget(m_place);
    addSeparator();
}

void DesignToolBar::createZoom()
{
    auto *zoomOut = new GAction(icon("zoomOut"), tr("Zoom out"), this);
    zoomOut->setShortcuts({QKeySequence(Qt::Key_Minus), QKeySequence(QKeySequence::ZoomOut)});
    zoomOut->setToolTip(tr("Zoom out (-)"));
    connect(zoomOut, &QAction::triggered, m_view, &DesignView::zoomOut);
    auto *zoomIn = new GAction(icon("zoomIn"), tr("Zoom in"), this);
    // On some keyboards the plus is on the key of the equals sign.
    zoomIn->setShortcuts({QKeySequence(Qt::Key_Plus), QKeySequence(Qt::Key_Equal),
                          QKeySequence(QKeySequence::ZoomIn)});
    zoomIn->setToolTip(tr("Zoom in (+)"));
    connect(zoomIn, &QAction::triggered, m_view, &DesignView::zoomIn);
    m_zoom = new QSlider(Qt::Horizontal, this);
    m_zoom->setRange(0, ZoomSliderSteps);
    m_zoom->setFixedWidth(ZoomSliderWidth);
    m_zoom->setFocusPolicy(Qt::TabFocus);
    m_zoom->setAccessibleName(tr("Zoom"));
    connect(m_zoom, &QSlider::valueChanged, m_view,
            [this](int value) { m_view->setZoom(zoomOf(value)); });
    m_percent = new QLabel(this);
    m_percent->setMinimumWidth(m_percent->fontMetrics().horizontalAdvance(tr("%1%").arg(3200)));
    m_percent->setToolTip(tr("100% is the true size."));
    auto *fit = new GAction(tr("Fit"), this);
    fit->setShortcut(Qt::Key_0);
    fit->setToolTip(tr("Show all of the design (0)"));
    connect(fit, &QAction::triggered, m_view, &DesignView::fit);
    auto *trueSize = new GAction(tr("True size"), this);
    trueSize->setShortcut(Qt::Key_1);
    trueSize->setToolTip(tr("As large as it is sewn (1)"));
    connect(trueSize, &QAction::triggered, m_view, [this] { m_view->setZoom(1.0); });
    addAction(zoomOut);
    addWidget(m_zoom);
    addAction(zoomIn);
    addWidget(m_percent);
    addAction(fit);
    addAction(trueSize);
    addExpandingSeparator();
}

void DesignToolBar::createAppearance()
{
    const GlobalSettings settings;
    m_hoopAction = createToggle(tr("Hoop"), tr("Show the smallest hoop around the design (H)"),
                                settings.hoopShown());
    m_hoopAction->setShortcut(Qt::Key_H);
    m_jumpsAction = createToggle(tr("Jumps"), tr("Show where the needle jumps without sewing (J)"),
                                 settings.jumpsShown());
    m_jumpsAction->setShortcut(Qt::Key_J);
    m_fabric = new FabricButton(this);
    connect(m_fabric, &FabricButton::colorChosen, this, &DesignToolBar::appearanceChanged);
    addWidget(m_fabric);
}

GAction *DesignToolBar::createToggle(const QString &text, const QString &toolTip, bool checked)
{
    auto *action = new GAction(text, this);
    action->setCheckable(true);
    action->setChecked(checked);
    action->setToolTip(toolTip);
    connect(action, &QAction::triggered, this, &DesignToolBar::appearanceChanged);
    addAction(action);
    return action;
}

void DesignToolBar::setNeighbours(bool hasPrevious, bool hasNext)
{
    m_previousAction->setEnabled(hasPrevious);
    m_nextAction->setEnabled(hasNext);
}

void DesignToolBar::setPlace(int index, int count)
{
    m_place->setText(
        index < 0 ? QString()
                  : tr("%1 of %2").arg(DesignTexts::number(index + 1), DesignTexts::number(count)));
}

bool DesignToolBar::isHoopShown() const
{
    return m_hoopAction->isChecked();
}

bool DesignToolBar::areJumpsShown() const
{
    return m_jumpsAction->isChecked();
}

QColor DesignToolBar::fabric() const
{
    return m_fabric->color();
}

void DesignToolBar::setFabric(const QColor &color)
{
    m_fabric->setColor(color);
}

void DesignToolBar::showZoom(double zoom)
{
    const QSignalBlocker blocker(m_zoom);
    m_zoom->setValue(sliderValue(zoom));
    m_percent->setText(tr("%1%").arg(DesignTexts::number(qRound(zoom * 100))));
}
