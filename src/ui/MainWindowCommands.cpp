// What the commands of MainWindow's menus do where they ask or show something.

#include "catalogue/models/FilterSelectionModel.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/watch/FolderWatcher.h"
#include "ui/CatalogueKeeper.h"
#include "ui/duplicates/DuplicatesDialog.h"
#include "ui/ExportDialog.h"
#include "ui/FolderChangeNotice.h"
#include "ui/MainWindow.h"
#include "ui/TransferNotice.h"
#include "widgets/controls/GMessageBox.h"

void MainWindow::removeSelectedDirectory()
{
    const QString folder = filter()->directoryFilter();
    if (folder.isEmpty() || m_operationRunning)
        return;
    GMessageBox question(GMessageBox::Question, this, tr("Remove selected folder from list?"),
                         folder);
    if (question.exec() == QMessageBox::No)
        return;
    runWithProgress(tr("Removing the folder..."),
                    [this] { m_controller->removeSelectedDirectory(); });
    filter()->setDirectory(m_project->smartFolders().value(0));
}

void MainWindow::rescanDirectories()
{
    runWithProgress(tr("Scanning..."), [this] { m_controller->scanSmartFolders(); });
}

void MainWindow::exportSelectedFiles()
{
    const auto files = m_controller->selectionModel()->selection()->selectedFiles();
    if (files.isEmpty()) {
        GMessageBox(GMessageBox::Information, this, tr("No embroidery files selected!"),
                    tr("Please select the files you want to transfer to your embroidery machine."))
            .exec();
        return;
    }
    ExportDialog dialog(this, files);
    if (dialog.exec() == QDialog::Accepted)
        m_transferNotice->tell(dialog.transferResult(), dialog.drive());
}

void MainWindow::findDuplicates()
{
    finishEdit();
    FolderWatcher *watcher = m_folderChanges->watcher();
    DuplicatesDialog dialog(this, m_project, [this] { return m_keeper->saveAnyway(); });
    connect(&dialog, &DuplicatesDialog::movesToTrash, watcher, &FolderWatcher::expect);
    dialog.exec();
    watcher->expectNothing();
}
