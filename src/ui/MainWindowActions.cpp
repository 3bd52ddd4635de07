// The actions of MainWindow, and the menus and the tool bar that hold them.

#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "ui/CenterView.h"
#include "ui/MainWindow.h"
#include "ui/SortMenu.h"
#include "widgets/controls/GToolBar.h"
#include "widgets/style/GIcon.h"

#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace {

constexpr int ToolbarIconSize = 24;

GIcon icon(const char *name)
{
    return GIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}

} // namespace

void MainWindow::createActions()
{
    m_addFolderAction =
        new GAction(icon("addFolder"), tr("&Add folder..."), this, SLOT(addDirectory()));
    m_removeFolderAction = new GAction(icon("removeFolder"), tr("&Remove folder"), this,
                                       SLOT(removeSelectedDirectory()));
    m_openDesignAction = new GAction(tr("&Open design"), this);
    m_openDesignAction->setShortcuts(QKeySequence::Open);
    connect(m_openDesignAction, &QAction::triggered, m_center, &CenterView::openDesign);
    m_selectAllAction = new GAction(tr("Select all"), this);
    m_selectAllAction->setShortcuts(QKeySequence::SelectAll);
    connect(m_selectAllAction, &QAction::triggered, m_center, &CenterView::selectAll);
    m_duplicatesAction = new GAction(tr("Find &duplicates..."), this, SLOT(findDuplicates()));
    m_duplicatesAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    m_zoomInAction = new GAction(icon("zoomIn"), tr("&Zoom in"), this);
    connect(m_zoomInAction, &QAction::triggered, m_center, &CenterView::zoomIn);
    m_zoomOutAction = new GAction(icon("zoomOut"), tr("&Zoom out"), this);
    connect(m_zoomOutAction, &QAction::triggered, m_center, &CenterView::zoomOut);
    m_transferAction = new GAction(icon("exportToUsb"), tr("Transfer to machine"), this,
                                   SLOT(exportSelectedFiles()));
    m_rescanAction = new GAction(icon("sync"), tr("&Rescan"), this, SLOT(rescanDirectories()));
    m_rescanAction->setShortcuts(QKeySequence::Refresh);

    auto *closeShortcut = new QShortcut(QKeySequence::Close, this);
    closeShortcut->setContext(Qt::WindowShortcut);
    connect(closeShortcut, &QShortcut::activated, this, &MainWindow::closeWindow);
    HooplineApplication::instance()->tutorialsAction()->setIcon(icon("tutorials"));
}

void MainWindow::createMenus()
{
    createFileMenu();
    createEditMenu();
    createViewMenu();
    createHelpMenu();
    installApplicationMenuItems(m_fileMenu, m_helpMenu);
}

void MainWindow::createFileMenu()
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_fileMenu->addAction(m_addFolderAction);
    m_fileMenu->addAction(m_removeFolderAction);
    m_fileMenu->addAction(m_rescanAction);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_openDesignAction);
    m_fileMenu->addSeparator();
}

void MainWindow::createEditMenu()
{
    editMenu()->addAction(m_selectAllAction);
    editMenu()->addAction(m_saveSearchAction);
    editMenu()->addSeparator();
    editMenu()->addAction(m_duplicatesAction);
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    m_viewMenu->addMenu(new SortMenu(filter(), m_viewMenu));
}

void MainWindow::createHelpMenu()
{
    m_helpMenu = menuBar()->addMenu(tr("&Help"));
    const auto helpActions = HooplineApplication::instance()->applicationLevelHelpActions();
    for (GAction *action : helpActions)
        m_helpMenu->addAction(action);
    connect(m_helpMenu, &QMenu::aboutToShow, HooplineApplication::instance(),
            &HooplineApplication::updateHelpActions);
}

void MainWindow::installApplicationMenuItems(QMenu *fileMenu, QMenu *helpMenu)
{
#ifndef Q_OS_MACOS
    HooplineApplication *application = HooplineApplication::instance();
    auto *quitAction = new GAction(tr("Quit"), this);
    // Not every desktop has a standard key for it.
    quitAction->setShortcuts(QKeySequence::Quit);
    if (quitAction->shortcut().isEmpty())
        quitAction->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Q));
    connect(quitAction, &QAction::triggered, application, &GApplication::closeAllWindowsAndQuit);
    fileMenu->addAction(application->preferencesAction());
    fileMenu->addAction(quitAction);
    helpMenu->addSeparator();
    helpMenu->addAction(application->aboutAction());
#else
    Q_UNUSED(fileMenu)
    Q_UNUSED(helpMenu)
#endif
}

void MainWindow::createToolbars()
{
    m_toolbar = new GToolBar(tr("Toolbar"), this);
    m_toolbar->setObjectName(QStringLiteral("toolbar"));
    m_toolbar->setIconSize(QSize(ToolbarIconSize, ToolbarIconSize));
    m_toolbar->addAction(m_addFolderAction);
    m_toolbar->addAction(m_removeFolderAction);
    m_toolbar->addAction(m_rescanAction);
    m_toolbar->addSeparator();
    m_toolbar->addAction(m_zoomOutAction);
    m_toolbar->addAction(m_zoomInAction);
    m_toolbar->addSeparator();
    m_toolbar->addAction(m_transferAction);
    m_toolbar->addExpandingSeparator();
    m_toolbar->addAction(HooplineApplication::instance()->tutorialsAction());
    addToolBar(m_toolbar);
    describeToolbarActions();
}

// What Qt makes of the menu's text keeps the letter of the menu where that stands in brackets.
void MainWindow::describeToolbarActions()
{
    const auto describe = [](QAction *action, const QString &name, const QString &toolTip) {
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setIconText(name);
        action->setToolTip(key.isEmpty() ? toolTip
                                         : tr("%1 (%2)", "tool tip and key").arg(toolTip, key));
    };
    describe(m_addFolderAction, tr("Add folder"), tr("Add a folder with embroidery designs"));
    describe(m_removeFolderAction, tr("Remove folder"),
             tr("Take the selected folder off the list; its files stay"));
    describe(m_rescanAction, tr("Rescan"), tr("Look for new, changed and missing designs"));
    describe(m_zoomOutAction, tr("Zoom out"), tr("Make the cards smaller"));
    describe(m_zoomInAction, tr("Zoom in"), tr("Make the cards larger"));
    describe(m_transferAction, tr("Transfer to machine"),
             tr("Copy the selected designs to the drive of your machine"));
    describe(HooplineApplication::instance()->tutorialsAction(), tr("Tutorials"),
             tr("Open the manual"));
}
