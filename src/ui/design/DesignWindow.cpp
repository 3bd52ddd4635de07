#include "ui/design/DesignWindow.h"

#include "app/application/HooplineApplication.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/userdata/RememberedValues.h"
#include "embroidery/HoopSizes.h"
#include "ui/design/DesignFactsPanel.h"
#include "ui/design/DesignLoader.h"
#include "ui/design/DesignToolBar.h"
#include "ui/design/DesignView.h"
#include "ui/design/FabricButton.h"
#include "ui/design/Playback.h"
#include "ui/design/PlaybackBar.h"
#include "ui/design/SewingSlider.h"
#include "ui/design/ThreadTable.h"
#include "widgets/controls/ScreenReader.h"
#include "widgets/style/GWidgetStyles.h"

#include <algorithm>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int InitialWidth = 1100;
constexpr int InitialHeight = 740;
constexpr int FactsWidth = 370;
constexpr int ReadingToldAfter = 300; // milliseconds
constexpr double PanStep = 60.0;      // pixels
constexpr double UnitsPerMillimetre = 10.0;

const QString FabricColor = QStringLiteral("fabric color");
const QString Linen = QStringLiteral("#f7f5f0");

QColor rememberedFabric(const RememberedValues &values)
{
    const QColor color(values.value(FabricColor, Linen));
    return color.isValid() ? color : QColor(Linen);
}

} // namespace

DesignWindow::DesignWindow(IFilterModel *filter, RememberedValues *values)
    : QWidget(nullptr, Qt::Window), m_filter(filter), m_values(values),
      m_loader(new DesignLoader(this)), m_playback(new Playback(this)),
      m_view(new DesignView(this)), m_toolBar(new DesignToolBar(m_view, this)),
      m_facts(new DesignFactsPanel(this)), m_playbackBar(new PlaybackBar(m_playback, this))
{
    // Screen readers are told of windows only where Qt takes a widget for one.
    ScreenReader::setRole(this, QAccessible::Window);
    createLayout();
    connectParts();
    m_toolBar->setFabric(rememberedFabric(*values));
    applyAppearance();
    m_readingTold.setSingleShot(true);
    m_readingTold.setInterval(ReadingToldAfter);
    resize(InitialWidth, InitialHeight);
    restoreGeometry(GlobalSettings().designWindowGeometry());
}

DesignWindow::~DesignWindow() = default;

void DesignWindow::createLayout()
{
    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setStyleSheet(GWidgetStyles::MainWindow_SplitterStyle());
    splitter->addWidget(m_view);
    splitter->addWidget(m_facts);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({InitialWidth - FactsWidth, FactsWidth});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_playbackBar);
    setTabOrder(m_toolBar->fabricButton(), m_view);
    m_view->setFocus();
}

void DesignWindow::connectParts()
{
    connect(m_toolBar, &DesignToolBar::previousRequested, this, &DesignWindow::showPrevious);
    connect(m_toolBar, &DesignToolBar::nextRequested, this, &DesignWindow::showNext);
    connect(m_toolBar, &DesignToolBar::appearanceChanged, this, &DesignWindow::keepAppearance);
    connect(m_loader, &DesignLoader::loaded, this, &DesignWindow::takeDesign);
    connect(m_playback, &Playback::positionChanged, this, &DesignWindow::showPosition);
    connect(m_facts->threads(), &ThreadTable::useChosen, this, &DesignWindow::showUse);
    connect(m_filter, &IFilterModel::filterChanged, this, &DesignWindow::showPlace);
    connect(&m_readingTold, &QTimer::timeout, this, [this] {
        const QString path = m_file->absoluteFilePath();
        takeDesign({path, {}, tr("Reading %1...").arg(QFileInfo(path).fileName())});
    });
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    if (HooplineApplication *application = HooplineApplication::instance())
        connect(application, &HooplineApplication::syncGlobalSettings, this, [this] {
            showFacts();
            applyAppearance();
        });
}

void DesignWindow::open(const QSharedPointer<IFile> &file)
{
    showFile(file);
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
}

void DesignWindow::showFile(const QSharedPointer<IFile> &file)
{
    m_file = file;
    m_index = -1;
    const QString name = QFileInfo(file->absoluteFilePath()).fileName();
    setWindowTitle(name);
    m_facts->setFileName(name);
    showPlace();
    m_playback->setPlaying(false);
    m_readingTold.start();
    m_loader->load(file->absoluteFilePath());
    emit designShown(file);
}

void DesignWindow::showPlace()
{
    if (!m_file)
        return;
    const QList<QSharedPointer<IFile>> files = m_filter->filteredFiles();
    const int index = files.indexOf(m_file);
    if (index >= 0)
        m_index = index;
    m_toolBar->setPlace(index, files.size());
    m_toolBar->setNeighbours(neighbour(-1) >= 0, neighbour(1) >= 0);
}

int DesignWindow::neighbour(int step) const
{
    const QList<QSharedPointer<IFile>> files = m_filter->filteredFiles();
    // Where one has left the filter, there is now what came after it.
    const bool isShown = m_index >= 0 && files.value(m_index) == m_file;
    const int from = qMin(m_index, files.size());
    const int target = from + (isShown || step < 0 ? step : 0);
    return from >= 0 && target < files.size() ? target : -1;
}

void DesignWindow::showPrevious()
{
    showNeighbour(-1);
}

void DesignWindow::showNext()
{
    showNeighbour(1);
}

void DesignWindow::showNeighbour(int step)
{
    const int target = neighbour(step);
    if (target >= 0)
        showFile(m_filter->filteredFiles().at(target));
}

void DesignWindow::takeDesign(const ReadDesign &design)
{
    m_readingTold.stop();
    m_order = design.order;
    m_view->setMessage(design.error);
    m_view->setDesign(m_order, m_toolBar->isHoopShown() ? hoop() : std::nullopt);
    showFacts();
    m_playbackBar->setDesign(m_order);
    highlight(-1);
    m_view->setAccessibleDescription(m_order ? m_facts->summary() : design.error);
}

std::optional<QSizeF> DesignWindow::hoop() const
{
    if (!m_order)
        return std::nullopt;
    return Embroidery::HoopSizes::smallestAround(m_order->bounds().size() / UnitsPerMillimetre,
                                                 GlobalSettings().imperialUnits());
}

void DesignWindow::showFacts()
{
    m_facts->setDesign(m_order, hoop(), GlobalSettings().imperialUnits());
    m_facts->setTrueSizeKnown(m_view->isTrueSizeKnown());
}

void DesignWindow::keepAppearance()
{
    GlobalSettings settings;
    m_values->setValue(FabricColor, m_toolBar->fabric().name());
    settings.setHoopShown(m_toolBar->isHoopShown());
    settings.setJumpsShown(m_toolBar->areJumpsShown());
    applyAppearance();
}

void DesignWindow::applyAppearance()
{
    DrawingStyle style = m_view->drawingStyle();
    style.fabric = m_toolBar->fabric();
    style.jumps = m_toolBar->areJumpsShown();
    m_view->setDrawingStyle(style);
    m_view->setHoop(m_toolBar->isHoopShown() ? hoop() : std::nullopt);
}

void DesignWindow::highlight(int use)
{
    DrawingStyle style = m_view->drawingStyle();
    style.highlightedUse = use;
    m_view->setDrawingStyle(style);
    m_playbackBar->slider()->setMarkedUse(use);
}

void DesignWindow::showUse(int use)
{
    const QScopedValueRollback<bool> choosing(m_choosingUse, true);
    m_playback->setPlaying(false);
    m_playback->setPosition(m_order->threadUses().at(use).endPoint);
    highlight(use);
}

void DesignWindow::showPosition(int position)
{
    m_view->setEndPoint(position);
    if (m_choosingUse || !m_order)
        return;
    highlight(-1);
    m_facts->threads()->setCurrentUse(
        m_playback->isComplete() ? -1 : m_order->useAt(qMax(position - 1, 0)));
    if (m_playback->isPlaying())
        m_view->showNeedle();
}

void DesignWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_view->setFocus();
}

void DesignWindow::closeEvent(QCloseEvent *event)
{
    m_playback->setPlaying(false);
    GlobalSettings().setDesignWindowGeometry(saveGeometry());
    QWidget::closeEvent(event);
}

void DesignWindow::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    const bool plain = modifiers == Qt::NoModifier;
    if (plain && key == Qt::Key_Escape)
        close();
    else if (plain && key == Qt::Key_Space)
        m_playback->togglePlaying();
    else if (plain && (key == Qt::Key_Left || key == Qt::Key_PageUp))
        showPrevious();
    else if (plain && (key == Qt::Key_Right || key == Qt::Key_PageDown))
        showNext();
    else if (modifiers != Qt::ShiftModifier || !panByKey(key))
        QWidget::keyPressEvent(event);
}

bool DesignWindow::panByKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        m_view->pan({PanStep, 0});
        return true;
    case Qt::Key_Right:
        m_view->pan({-PanStep, 0});
        return true;
    case Qt::Key_Up:
        m_view->pan({0, PanStep});
        return true;
    case Qt::Key_Down:
        m_view->pan({0, -PanStep});
        return true;
    default:
        return false;
    }
}
