// What MainWindow does with the catalogue as a whole.

#include "base/Error.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/Project.h"
#include "catalogue/sync/ProjectController.h"
#include "ui/BackupsDialog.h"
#include "ui/CatalogueKeeper.h"
#include "ui/CatalogueQuestions.h"
#include "ui/MainWindow.h"
#include "widgets/controls/GMessageBox.h"

#include <QDir>
#include <QSplashScreen>

bool MainWindow::loadCatalogue(QWidget *splash)
{
    bool folderWasMissing = false;
    const auto ask = [splash](const Error &error) {
        // It would lie over the question.
        splash->hide();
        if (!CatalogueQuestions::wantsToTryAgain(error))
            throw AbortException();
        splash->show();
    };
    for (;;) {
        m_controller = std::make_unique<ProjectController>();
        try {
            m_controller->loadOrCreateProject();
            return folderWasMissing;
        } catch (const CatalogueFolderMissingError &error) {
            // Where drives are mounted, the user may seldom make a folder.
            folderWasMissing = QDir().mkpath(GlobalSettings().applicationDataPath());
            if (!folderWasMissing)
                ask(error);
        } catch (const CatalogueUnusableError &error) {
            ask(error);
        } catch (const CatalogueUnsavedError &error) {
            ask(error);
        }
    }
}

UserDataMemory *MainWindow::memory() const
{
    return m_controller->memory();
}

bool MainWindow::confirmClose()
{
    finishEdit();
    return m_keeper->saveBeforeEnd();
}

bool MainWindow::saveForSessionEnd()
{
    finishEdit();
    return m_keeper->saveAnyway();
}

void MainWindow::showBackups()
{
    if (m_operationRunning)
        return;
    finishEdit();
    BackupsDialog dialog(m_controller->backups(), this);
    if (dialog.exec() == QDialog::Accepted && restore(dialog.chosen()))
        m_keeper->tellRestored(dialog.chosenTitle());
}

/** Whether what is shown now is what is in @p backup. */
bool MainWindow::restore(const QString &backup)
{
    try {
        m_controller->restore(backup);
    } catch (const CatalogueUnsavedError &) {
        m_keeper->saveAnyway();
    } catch (const Error &error) {
        GMessageBox::critical(tr("The backup could not be restored."), error.toString(), this);
        return false;
    }
    m_keeper->tellKept();
    filter()->setDirectory(m_project->smartFolders().value(0));
    return true;
}
