// The actions of MainWindow, and the menus and the tool bar that hold them.

#include "app/application/HooplineApplication.h"
#include "app/frame/GAction.h"
#include "catalogue/sync/ProjectController.h"
#include "preview/grid/PreviewBrowser.h"
#include "ui/CenterView.h"
#include "ui/LeftSidebar.h"
#include "ui/MainWindow.h"
#include "ui/RightSidebar.h"
#include "ui/SheetCommands.h"
#include "ui/SortMenu.h"
#include "widgets/controls/DesktopInteraction.h"
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

/** Not every desktop has a standard key for everything. */
void setShortcuts(QAction *action, QKeySequence::StandardKey standard, const QKeySequence &key)
{
    action->setShortcuts(standard);
    if (action->shortcut().isEmpty())
        action->setShortcut(key);
}

QKeySequence withModifier(Qt::Modifier modifier, Qt::Key key)
{
    return QKeySequence(int(modifier) | int(key));
}

/** For a menu to tell the key of what another widget does when it is pressed there. */
QString withKey(const QString &text, const QKeySequence &key)
{
    return text + QLatin1Char('\t') + key.toString(QKeySequence::NativeText);
}

/** An entry for @p action, the letter of whose own text another entry of @p menu has. */
void addWithOtherLetter(QMenu *menu, QAction *action, const QString &text)
{
    menu->addAction(withKey(text, action->shortcut()), action, &QAction::trigger);
}

} // namespace

void MainWindow::createActions()
{
    m_addFolderAction =
        new GAction(icon("addFolder"), tr("&Add folder..."), this, SLOT(addDirectory()));
    m_addFolderAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    m_removeFolderAction = new GAction(icon("removeFolder"), tr("&Remove folder"), this,
                                       SLOT(removeSelectedDirectory()));
    m_removeFolderAction->setShortcut(withModifier(Qt::CTRL, Qt::Key_Delete));
    m_openDesignAction = new GAction(tr("&Open design"), this);
    m_openDesignAction->setShortcuts(QKeySequence::Open);
    connect(m_openDesignAction, &QAction::triggered, m_center, &CenterView::openDesign);
    m_selectAllAction = new GAction(tr("Select all"), this);
    m_selectAllAction->setShortcuts(QKeySequence::SelectAll);
    connect(m_selectAllAction, &QAction::triggered, m_center, &CenterView::selectAll);
    m_duplicatesAction = new GAction(tr("Find &duplicates..."), this, SLOT(findDuplicates()));
    m_duplicatesAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    createZoomActions();
    m_transferAction = new GAction(icon("exportToUsb"), tr("Transfer to machine"), this,
                                   SLOT(exportSelectedFiles()));
    m_transferAction->setShortcut(withModifier(Qt::CTRL, Qt::Key_T));
    m_backupsAction = new GAction(tr("&Backups..."), this, SLOT(showBackups()));
    m_rescanAction = new GAction(icon("sync"), tr("&Rescan"), this, SLOT(rescanDirectories()));
    m_rescanAction->setShortcuts(QKeySequence::Refresh);

    auto *closeShortcut = new QShortcut(QKeySequence::Close, this);
    closeShortcut->setContext(Qt::WindowShortcut);
    connect(closeShortcut, &QShortcut::activated, this, &MainWindow::closeWindow);
    HooplineApplication::instance()->tutorialsAction()->setIcon(icon("tutorials"));
}

void MainWindow::createZoomActions()
{
    m_zoomInAction = new GAction(icon("zoomIn"), tr("&Zoom in"), this);
    connect(m_zoomInAction, &QAction::triggered, m_center, &CenterView::zoomIn);
    // On many keyboards the plus sign needs Shift.
    m_zoomInAction->setShortcuts(
        {withModifier(Qt::CTRL, Qt::Key_Plus), withModifier(Qt::CTRL, Qt::Key_Equal)});
    m_zoomOutAction = new GAction(icon("zoomOut"), tr("&Zoom out"), this);
    connect(m_zoomOutAction, &QAction::triggered, m_center, &CenterView::zoomOut);
    m_zoomOutAction->setShortcut(withModifier(Qt::CTRL, Qt::Key_Minus));
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
    addWithOtherLetter(m_fileMenu, m_rescanAction, tr("Re&scan"));
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_openDesignAction);
    m_fileMenu->addAction(DesktopInteraction::revealActionTextString(), m_center->browser(),
                          &PreviewBrowser::revealCurrent, Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    m_fileMenu->addAction(m_transferAction);
    m_fileMenu->addSeparator();
    (new SheetCommands(this, m_controller->selectionModel(), m_notices))->addTo(m_fileMenu);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(m_backupsAction);
}

void MainWindow::createEditMenu()
{
    PreviewBrowser *browser = m_center->browser();
    QMenu *menu = editMenu();
    menu->addAction(m_selectAllAction);
    menu->addAction(withKey(tr("Select &nothing"), withModifier(Qt::CTRL, Qt::Key_D)), browser,
                    &PreviewBrowser::selectNone);
    menu->addSeparator();
    menu->addAction(withKey(tr("&Favorite"), Qt::Key_F), browser, &PreviewBrowser::toggleFavorites);
    QAction *editTags = menu->addAction(tr("Edit &tags"), this, &MainWindow::editTags);
    editTags->setShortcut(Qt::Key_T);
    // Elsewhere the letter chooses from a list.
    editTags->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    browser->addAction(editTags);
    menu->addSeparator();
    menu->addAction(withKey(tr("Sea&rch"), QKeySequence::Find), m_center, &CenterView::search);
    menu->addAction(m_saveSearchAction);
    menu->addSeparator();
    menu->addAction(m_duplicatesAction);
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    m_viewMenu->addMenu(new SortMenu(filter(), m_viewMenu));
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(m_zoomInAction);
    addWithOtherLetter(m_viewMenu, m_zoomOutAction, tr("Zoom &out"));
    PreviewBrowser *browser = m_center->browser();
    m_viewMenu->addAction(tr("&Normal size"), browser, &PreviewBrowser::zoomToDefault,
                          withModifier(Qt::CTRL, Qt::Key_0));
    m_viewMenu->addAction(withKey(tr("&Enlarged preview"), Qt::Key_Space), browser,
                          &PreviewBrowser::previewSelection);
    m_viewMenu->addSeparator();
    m_leftPanelAction = addPanelSwitch(m_left, tr("&Folders and tags"), Qt::Key_F9);
    m_rightPanelAction =
        addPanelSwitch(m_right, tr("&Properties"), withModifier(Qt::SHIFT, Qt::Key_F9));
}

QAction *MainWindow::addPanelSwitch(QWidget *panel, const QString &text, const QKeySequence &key)
{
    QAction *action = m_viewMenu->addAction(text);
    action->setShortcut(key);
    action->setCheckable(true);
    action->setChecked(true);
    connect(action, &QAction::toggled, panel, &QWidget::setVisible);
    return action;
}

void MainWindow::editTags()
{
    m_rightPanelAction->setChecked(true);
    m_right->editTags();
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
    setShortcuts(quitAction, QKeySequence::Quit, withModifier(Qt::CTRL, Qt::Key_Q));
    setShortcuts(application->preferencesAction(), QKeySequence::Preferences,
                 withModifier(Qt::CTRL, Qt::Key_Comma));
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
