#include "ui/CatalogueKeeper.h"

#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/sync/ProjectController.h"
#include "catalogue/userdata/RememberedData.h"
#include "ui/CatalogueQuestions.h"
#include "ui/NoticeBar.h"
#include "widgets/controls/DesktopInteraction.h"
#include "widgets/controls/GMessageBox.h"

#include <algorithm>
#include <QDir>
#include <QFileInfo>
#include <utility>

namespace {

constexpr std::chrono::seconds RetryInterval(5);
// A large catalogue takes a moment to write, and the window waits for it.
constexpr int LeastPause = 20; // times as long as the last attempt

const QString Unsaved = QStringLiteral("unsaved");
const QString Unreadable = QStringLiteral("unreadable");
const QString Unremembered = QStringLiteral("unremembered");
const QString NoBackup = QStringLiteral("no backup");

/** Why @p attempt has failed; null when it has not. */
template <class Attempt>
QString failureOf(Attempt attempt)
{
    try {
        attempt();
        return {};
    } catch (const CatalogueUnsavedError &error) {
        return error.reason();
    } catch (const Error &error) {
        return error.toString();
    } catch (const std::exception &error) {
        return QString::fromLocal8Bit(error.what());
    }
}

} // namespace

CatalogueKeeper::CatalogueKeeper(ProjectController *controller, NoticeBar *notices, QWidget *window)
    : QObject(window), m_controller(controller), m_notices(notices), m_window(window),
      m_interval(RetryInterval)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &CatalogueKeeper::retry);
    connect(remembered(), &RememberedData::failed, this, &CatalogueKeeper::tellUnremembered);
    tellUnremembered(remembered()->failure());
}

void CatalogueKeeper::save()
{
    if (m_paused || m_givenUp)
        return;
    if (m_controller->isSaving()) {
        m_saveNext = true;
        return;
    }
    m_begun.start();
    const QString failure = failureOf([this] {
        m_controller->beginSave(
            [this, mailbox = m_mailbox.address()] { mailbox.post([this] { endSave(); }); });
    });
    if (!failure.isNull() || !m_controller->isModified())
        tellSaved(failure);
}

/** Comes when a save has been written, unless somebody has waited for it. */
void CatalogueKeeper::endSave()
{
    if (m_controller->isSaving())
        tellSaved(failureOf([this] { m_controller->finishSave(); }));
    const bool reloads = std::exchange(m_reloadNext, false);
    if (std::exchange(m_saveNext, false))
        save();
    if (reloads)
        reload();
}

bool CatalogueKeeper::saveAnyway()
{
    return trySave().isNull();
}

/** Why nothing could be saved; null when it could. */
QString CatalogueKeeper::trySave()
{
    if (m_givenUp)
        return {};
    m_begun.start();
    QString failure = failureOf([this] { m_controller->saveProjectIfModified(); });
    tellSaved(failure);
    return failure;
}

void CatalogueKeeper::tellSaved(const QString &failure)
{
    if (failure.isNull())
        withdrawWhatIsRight();
    else
        tellUnsaved(failure);
    tellKept();
    retryLater(std::chrono::milliseconds(m_begun.elapsed()));
}

void CatalogueKeeper::reload()
{
    if (m_givenUp || m_paused)
        return;
    if (m_controller->isSaving()) {
        m_reloadNext = true;
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const QString reason = failureOf([this] { m_controller->reloadProjectIfNewerOnDisk(); });
    if (reason.isNull())
        withdrawWhatIsRight();
    else
        tellUnreadable(reason);
    tellKept();
    retryLater(std::chrono::milliseconds(timer.elapsed()));
}

void CatalogueKeeper::withdrawWhatIsRight()
{
    if (!m_controller->isNewerOnDisk())
        m_notices->withdraw(Unreadable);
    if (!m_controller->isModified())
        m_notices->withdraw(Unsaved);
}

void CatalogueKeeper::tellUnsaved(const QString &reason)
{
    m_notices->tell(
        {Unsaved,
         Notice::Problem,
         tr("Your last changes could not be saved: %1").arg(reason),
         {{tr("Try again"), [this] { save(); }}, {tr("Save a copy..."), [this] { saveCopy(); }}}});
}

void CatalogueKeeper::tellUnreadable(const QString &reason)
{
    m_notices->tell(
        {Unreadable,
         Notice::Problem,
         tr("Another program has changed the catalogue, and it cannot be read: %1").arg(reason),
         {{tr("Try again"), [this] { reload(); }},
          {tr("Save a copy..."), [this] { saveCopy(); }}}});
}

/** The store tries again by itself. */
void CatalogueKeeper::tellUnremembered(const QString &reason)
{
    if (reason.isEmpty())
        m_notices->withdraw(Unremembered);
    else
        m_notices->tell({Unremembered,
                         Notice::Problem,
                         tr("Saved searches cannot be saved: %1").arg(reason),
                         {{tr("Try again"), [this] { remembered()->tryAgain(); }}}});
}

RememberedData *CatalogueKeeper::remembered() const
{
    return m_controller->memory()->remembered();
}

void CatalogueKeeper::tellKept()
{
    const auto kept = m_controller->takeKept();
    for (const ProjectController::Kept &catalogue : kept) {
        const QString name = QFileInfo(catalogue.file).fileName();
        QString text;
        switch (catalogue.fate) {
        case CatalogueFile::Damaged:
            text = catalogue.designs < 0
                       ? tr("The catalogue was damaged by another program. It was replaced by "
                            "what is shown here and kept as %1.")
                             .arg(name)
                       : tr("The catalogue was damaged. %n design(s) could be taken over; the "
                            "damaged file was kept as %1.",
                            nullptr, catalogue.designs)
                             .arg(name);
            break;
        case CatalogueFile::Replaced:
            text = tr("Another program had changed the catalogue. What it wrote was kept as %1.")
                       .arg(name);
            break;
        case CatalogueFile::Unsaved:
            text = tr("Another program has changed the catalogue, which is shown now. Your "
                      "changes that had not been saved were kept as %1.")
                       .arg(name);
            break;
        }
        m_notices->tell({catalogue.file,
                         Notice::Information,
                         text,
                         {{DesktopInteraction::revealActionTextString(),
                           [file = catalogue.file] { DesktopInteraction::revealInFinder(file); }},
                          backupsAction()}});
    }
    tellBackupFailure();
}

Notice::Action CatalogueKeeper::backupsAction()
{
    return {tr("Backups..."), [this] { emit backupsWanted(); }};
}

void CatalogueKeeper::tellBackupFailure()
{
    const QString failure = m_controller->backupFailure();
    if (failure == m_backupFailure)
        return;
    m_backupFailure = failure;
    if (failure.isEmpty())
        m_notices->withdraw(NoBackup);
    else
        m_notices->tell({NoBackup,
                         Notice::Information,
                         tr("No backup of the catalogue could be made: %1").arg(failure),
                         {}});
}

void CatalogueKeeper::tellRestored(const QString &title)
{
    m_notices->tell(
        {QStringLiteral("restored"),
         Notice::Information,
         tr("The backup of %1 was restored. What was there before is kept as a backup.").arg(title),
         {backupsAction()}});
}

void CatalogueKeeper::tellStart(bool folderWasMissing)
{
    tellKept();
    if (m_controller->hasRecoveredEdits())
        m_notices->tell({QStringLiteral("recovered"),
                         Notice::Information,
                         tr("Changes that had not been saved when the program ended are back."),
                         {}});
    if (folderWasMissing)
        tellFolderWasMissing();
}

void CatalogueKeeper::tellFolderWasMissing()
{
    const QString folder = QFileInfo(m_controller->projectFilePath()).path();
    m_notices->tell({QStringLiteral("folder"),
                     Notice::Information,
                     tr("The folder of the catalogue, %1, was not there, and an empty one was "
                        "made. Is it on a drive that is not plugged in? Then quit, plug it in and "
                        "start again.")
                         .arg(QDir::toNativeSeparators(folder)),
                     {}});
}

void CatalogueKeeper::retryLater(std::chrono::milliseconds lastAttempt)
{
    if (m_notices->isTelling(Unsaved) || m_notices->isTelling(Unreadable))
        m_retryTimer.start(std::max(m_interval, lastAttempt * LeastPause));
    else
        m_retryTimer.stop();
}

void CatalogueKeeper::retry()
{
    if (m_notices->isTelling(Unreadable))
        reload();
    if (m_notices->isTelling(Unsaved))
        save();
    if (m_paused)
        retryLater({});
}

bool CatalogueKeeper::saveBeforeEnd()
{
    for (;;) {
        const QString reason = tryToEnd();
        if (reason.isEmpty())
            return true;
        m_retryTimer.stop();
        switch (CatalogueQuestions::askAtEnd(m_window, reason)) {
        case CatalogueQuestions::TryToSave:
            break;
        case CatalogueQuestions::SaveCopy:
            m_givenUp = saveCopy();
            break;
        case CatalogueQuestions::QuitUnsaved:
            m_givenUp = true;
            break;
        case CatalogueQuestions::Stay:
            retryLater({});
            return false;
        }
    }
}

/** Why something would be lost if the program ended now; empty when nothing would be. */
QString CatalogueKeeper::tryToEnd()
{
    const QString reason = trySave();
    return reason.isNull() && !m_givenUp ? remembered()->failure() : reason;
}

bool CatalogueKeeper::saveCopy()
{
    const QString path = CatalogueQuestions::chooseCopy(m_window);
    if (path.isEmpty())
        return false;
    const QString reason = failureOf([&] { m_controller->saveCopy(path); });
    if (!reason.isNull())
        GMessageBox::critical(tr("The copy could not be saved."), reason, m_window);
    return reason.isNull();
}
