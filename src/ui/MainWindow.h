#pragma once

#include "app/application/GMainWindow.h"

#include <functional>
#include <memory>
#include <QSharedPointer>

class ActivityList;
class CatalogueKeeper;
class CenterView;
class FolderChangeNotice;
class GToolBar;
class IFilterModel;
class LeftSidebar;
class NoticeBar;
class PathOpener;
class ProgressDialog;
class Project;
class ProjectController;
class RightSidebar;
class TransferNotice;
class StatusLine;
class ScanNotice;
class UserDataMemory;

/** The one window of the product: owns the catalogue's controller and turns commands into calls. */
class MainWindow : public GMainWindow
{
    Q_OBJECT

public:
    /**
     * Loads or creates the catalogue. When that is not possible the user may try again.
     * @throws AbortException when he gives it up
     */
    MainWindow();
    /** Saves the catalogue. */
    ~MainWindow() override;

    /** Saves the catalogue; the user is asked what to do when that fails. */
    bool confirmClose() override;
    bool saveForSessionEnd() override;

    /** During a scan. */
    bool isBusy() const override { return m_operationRunning; }
    void cancelWork() override;

    /** The catalogue saves itself and is never opened as a document. */
    bool loadFile(const QString &name) override;
    bool saveFile(const QString &name) override;
    bool isModified() const override;

    /** What is known of designs that are not in the catalogue; of the window. */
    UserDataMemory *memory() const;

    /** Shows designs in the grid and offers folders that the catalogue does not know. */
    void showPaths(const QStringList &paths) override;

public slots:
    /** Adds the folders among @p paths. */
    void filesDropped(const QStringList &paths);
    void removeSelectedDirectory();
    void applicationStateChanged(Qt::ApplicationState state);
    void updateUI();
    void addDirectory();
    void rescanDirectories();
    void exportSelectedFiles();
    /** Lists the backups of the catalogue and restores the one that is chosen. */
    void showBackups();
    void findDuplicates();

protected:
    void writeSettings(GSettings &settings) override;
    void readSettings(GSettings &settings) override;
    void shutdownWindow() override;
    void installApplicationMenuItems(QMenu *fileMenu, QMenu *helpMenu) override;
    void changeEvent(QEvent *event) override;

private:
    bool loadCatalogue(QWidget *splash);
    bool restore(const QString &backup);
    void createPanes();
    void createActions();
    void createMenus();
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createHelpMenu();
    void createZoomActions();
    QAction *addPanelSwitch(QWidget *panel, const QString &text, const QKeySequence &key);
    void editTags();
    void createToolbars();
    void describeToolbarActions();
    void createPathOpener();
    void createStatusLine();
    void setupInitialLayout();
    void addDirectories(const QStringList &directories);
    void runWithProgress(const QString &activity, const std::function<void()> &operation);
    void hideStaleProgress();
    void finishEdit();
    IFilterModel *filter() const;

    GAction *m_addFolderAction = nullptr;
    GAction *m_removeFolderAction = nullptr;
    GAction *m_rescanAction = nullptr;
    GAction *m_openDesignAction = nullptr;
    GAction *m_selectAllAction = nullptr;
    GAction *m_saveSearchAction = nullptr;
    GAction *m_duplicatesAction = nullptr;
    GAction *m_zoomInAction = nullptr;
    GAction *m_zoomOutAction = nullptr;
    GAction *m_transferAction = nullptr;
    QAction *m_leftPanelAction = nullptr;
    QAction *m_rightPanelAction = nullptr;
    GAction *m_backupsAction = nullptr;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    GToolBar *m_toolbar = nullptr;
    ProgressDialog *m_progressDialog = nullptr;
    ActivityList *m_activities = nullptr;
    NoticeBar *m_notices = nullptr;
    PathOpener *m_pathOpener = nullptr;
    TransferNotice *m_transferNotice = nullptr;
    FolderChangeNotice *m_folderChanges = nullptr;
    ScanNotice *m_scanNotice = nullptr;
    QSplitter *m_splitter = nullptr;
    LeftSidebar *m_left = nullptr;
    CenterView *m_center = nullptr;
    RightSidebar *m_right = nullptr;
    StatusLine *m_status = nullptr;
    QSharedPointer<Project> m_project;
    std::unique_ptr<ProjectController> m_controller;
    std::unique_ptr<CatalogueKeeper> m_keeper;
    bool m_operationRunning = false;
};
