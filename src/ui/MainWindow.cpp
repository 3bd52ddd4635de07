#include "ui/MainWindow.h"

#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "app/frame/GFileDialog.h"
#include "base/Error.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/Project.h"
#include "catalogue/scan/PreviewRepair.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/RememberedData.h"
#include "online/metrics/Metrics.h"
#include "preview/cache/PreviewCache.h"
#include "preview/grid/PreviewBrowser.h"
#include "ui/CatalogueKeeper.h"
#include "ui/CenterView.h"
#include "ui/FolderChangeNotice.h"
#include "ui/LeftSidebar.h"
#include "ui/NoticeBar.h"
#include "ui/ProgressDialog.h"
#include "ui/RightSidebar.h"
#include "ui/ScanNotice.h"
#include "ui/SortMenu.h"
#include "ui/StatusLine.h"
#include "ui/TransferNotice.h"
#include "widgets/controls/ActivityList.h"
#include "widgets/controls/StatusActivity.h"
#include "widgets/style/GWidgetStyles.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QSplashScreen>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int InitialWidth = 1024;
constexpr int InitialHeight = 700;
constexpr int SideBarMargin = 30;
constexpr int RetryDelay = 100; // milliseconds

QString splitterKey()
{
    return QStringLiteral("mainWindowSplitter");
}

QString leftPanelKey()
{
    return QStringLiteral("leftPanelShown");
}

QString rightPanelKey()
{
    return QStringLiteral("rightPanelShown");
}

} // namespace

MainWindow::MainWindow() : GMainWindow(nullptr, false)
{
    QSplashScreen splash(QPixmap(QStringLiteral(":/SplashScreen@2x.png")));
    splash.show();
    splash.showMessage(tr("Loading ..."), Qt::AlignBottom | Qt::AlignHCenter, Qt::black);
    QCoreApplication::processEvents();

    setWindowTitle(QGuiApplication::applicationDisplayName());
    const bool folderWasMissing = loadCatalogue(&splash);
    m_project = m_controller->project();
    m_progressDialog = new ProgressDialog(this);
    connect(m_progressDialog, &ProgressDialog::cancelRequested, this,
            &MainWindow::hideStaleProgress);
    m_controller->setProgressAbortListener(m_progressDialog);
    m_controller->setUsageEventSink(&Metrics::submitEvent);
    filter()->setSortOrder(SortMenu::rememberedOrder());
    PreviewCache::instance().setRepairer(&PreviewRepair::repaint);
    createPanes();
    createActions();
    createMenus();
    // The Tab key comes to it after the panes.
    createStatusLine();
    createToolbars();
    createPathOpener();
    setupInitialLayout();
    restoreWindowState(QString());
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            &MainWindow::applicationStateChanged);
    connect(filter(), &IFilterModel::directoryFilterChanged, this, &MainWindow::updateUI);
    const QStringList folders = m_project->smartFolders();
    if (folders.isEmpty())
        updateUI();
    else
        filter()->setDirectory(folders.first());
    m_keeper->tellStart(folderWasMissing);
}

MainWindow::~MainWindow()
{
    HooplineApplication::instance()->guarded([this] {
        PreviewCache::instance().clear();
        m_keeper->saveAnyway();
    });
    // The panes and the line below them use the models, which go with the controller.
    delete m_splitter;
    delete m_status;
}

/** True when the folder of the catalogue was missing though it should have been there. */
IFilterModel *MainWindow::filter() const
{
    return m_controller->selectionModel()->filter();
}

void MainWindow::createPanes()
{
    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setStyleSheet(GWidgetStyles::MainWindow_SplitterStyle());
    m_activities = new ActivityList(this);
    m_notices = new NoticeBar(this);
    m_transferNotice = new TransferNotice(m_notices, this);
    m_folderChanges = new FolderChangeNotice(
        m_project, m_notices, [this] { rescanDirectories(); }, this);
    m_scanNotice = new ScanNotice(
        m_notices, [this] { rescanDirectories(); }, this);
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notices);
    layout->addWidget(m_splitter, 1);
    setCentralWidget(central);
    FilterSelectionModel *model = m_controller->selectionModel();
    m_left = new LeftSidebar(this, m_project, model->filter());
    RememberedData *remembered = memory()->remembered();
    m_saveSearchAction = m_left->addSavedSearches(remembered->searches());
    m_center = new CenterView(this, m_project, model, remembered->values());
    m_right = new RightSidebar(this, m_project, model->selection());
    m_keeper = std::make_unique<CatalogueKeeper>(m_controller.get(), m_notices, this);
    connect(m_keeper.get(), &CatalogueKeeper::backupsWanted, this, &MainWindow::showBackups);
    m_splitter->addWidget(m_left);
    m_splitter->addWidget(m_center);
    m_splitter->addWidget(m_right);
    m_splitter->setChildrenCollapsible(false);
    connect(m_left, &LeftSidebar::filesDropped, this, &MainWindow::filesDropped);
    connect(m_left, &LeftSidebar::removeSelectedDirectory, this,
            &MainWindow::removeSelectedDirectory);
    connect(m_center, &CenterView::filesDropped, this, &MainWindow::filesDropped);
    connect(m_center, &CenterView::addFolderRequested, this, &MainWindow::addDirectory);
    connect(m_center, &CenterView::allFoldersRequested, m_left, &LeftSidebar::showAllFolders);
}

void MainWindow::createStatusLine()
{
    m_status = new StatusLine(this, m_controller->selectionModel(), m_activities);
    setStatusBar(m_status);
    PreviewBrowser *browser = m_center->browser();
    const auto showZoom = [this, browser] {
        m_status->showZoom(browser->zoomPercent(), browser->zoomIndex());
    };
    m_status->setZoomSteps(PreviewBrowser::ScaleFactors.size());
    connect(m_status, &StatusLine::zoomStepChosen, browser, &PreviewBrowser::setZoomIndex);
    connect(browser, &PreviewBrowser::zoomChanged, m_status, showZoom);
    showZoom();
}

void MainWindow::setupInitialLayout()
{
    // The line of the properties that must never wrap.
    const QString widest = tr("Number of stitches: 99 mm x 99 mm");
    const int width = QFontMetrics(QApplication::font()).boundingRect(widest).width();
    m_left->setMinimumWidth(width + SideBarMargin);
    m_right->setMinimumWidth(width + SideBarMargin);
    resize(InitialWidth, InitialHeight);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 100);
    m_splitter->setStretchFactor(2, 0);
    m_splitter->setSizes({1, 1000, 1});
}

void MainWindow::writeSettings(GSettings &settings)
{
    settings.setValue(splitterKey(), m_splitter->saveState());
    settings.setValue(leftPanelKey(), m_leftPanelAction->isChecked());
    settings.setValue(rightPanelKey(), m_rightPanelAction->isChecked());
    m_left->saveWidgetState(settings);
    m_right->saveWidgetState(settings);
}

void MainWindow::readSettings(GSettings &settings)
{
    m_splitter->restoreState(settings.value(splitterKey()).toByteArray());
    m_leftPanelAction->setChecked(settings.value(leftPanelKey(), true).toBool());
    m_rightPanelAction->setChecked(settings.value(rightPanelKey(), true).toBool());
    m_left->restoreWidgetState(settings);
    m_right->restoreWidgetState(settings);
}

void MainWindow::cancelWork()
{
    m_progressDialog->reject();
}

/** An edit that is under way is finished by the loss of the focus. */
void MainWindow::finishEdit()
{
    if (QWidget *widget = focusWidget())
        widget->clearFocus();
}

void MainWindow::shutdownWindow()
{
    finishEdit();
}

void MainWindow::changeEvent(QEvent *event)
{
    GMainWindow::changeEvent(event);
    // A style sheet keeps the palette's colours that it was read with.
    if (event->type() == QEvent::PaletteChange && m_splitter)
        m_splitter->setStyleSheet(GWidgetStyles::MainWindow_SplitterStyle());
}

bool MainWindow::loadFile(const QString &)
{
    return false;
}

bool MainWindow::saveFile(const QString &)
{
    return false;
}

bool MainWindow::isModified() const
{
    return false;
}

void MainWindow::runWithProgress(const QString &activity, const std::function<void()> &operation)
{
    // The events that the progress lets in may bring another operation.
    if (m_operationRunning)
        return;
    const QScopedValueRollback<bool> running(m_operationRunning, true);
    m_scanNotice->withdraw();
    m_center->setScanning(true);
    m_keeper->setPaused(true);
    const StatusActivity status(this, activity);
    bool complete = false;
    m_folderChanges->watcher()->beginScan();
    const auto scanned = qScopeGuard([&] {
        m_keeper->setPaused(false);
        m_center->setScanning(false);
        m_folderChanges->watcher()->endScan(complete);
        m_status->refresh();
        m_progressDialog->hide();
    });
    m_progressDialog->begin();
    try {
        operation();
    } catch (const CatalogueUnsavedError &error) {
        m_keeper->tellUnsaved(error.reason());
    }
    m_keeper->tellKept();
    m_scanNotice->tell(m_controller->lastReport());
    complete = m_progressDialog->abortState() == 0;
}

void MainWindow::hideStaleProgress()
{
    // An operation that failed has left the dialog up, and with it the way to the window barred.
    if (!m_operationRunning)
        m_progressDialog->hide();
}

void MainWindow::addDirectories(const QStringList &directories)
{
    if (m_operationRunning) {
        QTimer::singleShot(RetryDelay, this, [this, directories] { addDirectories(directories); });
        return;
    }
    runWithProgress(tr("Scanning..."), [&] { m_controller->addDirectories(directories); });
    GlobalSettings().setLastImportPath(directories.first());
    filter()->setDirectory(directories.first());
}

void MainWindow::addDirectory()
{
    const QString lastPath = GlobalSettings().lastImportPath();
    const QString folder = GFileDialog::getExistingDirectory(
        this, tr("Select folder to add"), lastPath.left(lastPath.lastIndexOf(QLatin1Char('/'))),
        QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty())
        addDirectories({folder});
}

void MainWindow::filesDropped(const QStringList &paths)
{
    QStringList folders;
    for (QString path : paths) {
        if (!QFileInfo(path).isDir())
            continue;
        if (path.length() > 1 && path.endsWith(QLatin1Char('/')))
            path.chop(1);
        folders.append(path);
    }
    if (!folders.isEmpty())
        addDirectories(folders);
}

void MainWindow::updateUI()
{
    const QString folder = filter()->directoryFilter();
    m_removeFolderAction->setEnabled(!folder.isEmpty() &&
                                     m_project->smartFolders().contains(folder));
}

void MainWindow::applicationStateChanged(Qt::ApplicationState state)
{
    // The signal comes from outside of all event handlers.
    HooplineApplication::instance()->guarded([this, state] {
        if (state == Qt::ApplicationActive)
            m_keeper->reload();
        else
            m_keeper->save();
    });
}
