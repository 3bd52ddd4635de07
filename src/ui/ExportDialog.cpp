#include "ui/ExportDialog.h"

#include "catalogue/records/IFile.h"
#include "drives/DrivePoller.h"
#include "ui/TransferProgress.h"
#include "ui_ExportDialogUI.h"
#include "widgets/controls/FocusReturn.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/StatusActivity.h"

#include <algorithm>
#include <QStorageInfo>

namespace {

constexpr int PollInterval = 500; // milliseconds

} // namespace

ExportDialog::ExportDialog(QWidget *parent, const QList<QSharedPointer<IFile>> &files,
                           const VolumeSource &volumes)
    : QDialog(parent, Qt::Sheet), m_ui(std::make_unique<Ui::ExportDialogUI>()),
      m_poller(new DrivePoller(volumes, this)), m_files(files)
{
    m_ui->setupUi(this);
    new FocusReturn(this);
    m_ui->label->setText(tr("%n file(s) will be copied.", nullptr, files.size()));
    connect(m_poller, &DrivePoller::drivesListed, this, &ExportDialog::updateDriveList);
    fillDriveList();
    refreshDriveList();
    connect(&m_timer, &QTimer::timeout, this, &ExportDialog::refreshDriveList);
    m_timer.start(PollInterval);
}

ExportDialog::~ExportDialog() = default;

bool ExportDialog::mightBeUsbDrive(const QStorageInfo &volume)
{
    return DriveInfo::fromVolume(volume).mightBeUsbDrive();
}

void ExportDialog::refreshDriveList()
{
    m_poller->poll();
}

void ExportDialog::updateDriveList(const QList<DriveInfo> &drives, bool looking)
{
    // An unchanged list keeps the user's choice.
    if (drives == m_drives && looking == m_looking)
        return;
    m_drives = drives;
    m_looking = looking;
    fillDriveList();
}

void ExportDialog::fillDriveList()
{
    QComboBox *list = m_ui->disksComboBox;
    const QString chosen = list->currentData().toString();
    list->clear();
    for (const DriveInfo &drive : std::as_const(m_drives))
        list->addItem(drive.displayText(), drive.rootPath);
    // Another drive that comes or goes doesn't change what the user has chosen.
    list->setCurrentIndex(qMax(0, list->findData(chosen)));
    const bool driveFound = list->count() > 0;
    if (!driveFound)
        list->addItem(m_looking ? tr("Looking for drives...") : tr("No removable USB drive found"));
    tellSearch(!driveFound && m_looking);
    const bool isFirst = driveFound && !list->isEnabled();
    list->setEnabled(driveFound);
    // Until now Cancel was all that could have the keys.
    if (isFirst)
        list->setFocus(Qt::OtherFocusReason);
    m_ui->copyButton->setEnabled(driveFound);
}

void ExportDialog::tellSearch(bool looking)
{
    if (!looking)
        m_search.reset();
    else if (!m_search)
        m_search = std::make_unique<StatusActivity>(this, tr("Looking for drives..."));
}

void ExportDialog::accept()
{
    const QString target = m_ui->disksComboBox->currentData().toString();
    if (!target.isEmpty())
        copyTo(target);
    if (m_result.hasFailed())
        GMessageBox(GMessageBox::Critical, this,
                    tr("Failed to copy file %1").arg(m_result.failedName),
                    tr("Cannot copy file to %1").arg(target) + QStringLiteral("\n\n") +
                        m_result.reasonText())
            .exec();
    QDialog::accept();
}

/** The drive as it was listed, which tells one that was pulled since. */
DriveInfo ExportDialog::driveAt(const QString &target) const
{
    const auto listed =
        std::find_if(m_drives.begin(), m_drives.end(),
                     [&target](const DriveInfo &drive) { return drive.rootPath == target; });
    if (listed != m_drives.end())
        return *listed;
    DriveInfo drive;
    drive.rootPath = target;
    return drive;
}

void ExportDialog::copyTo(const QString &target)
{
    QStringList sources;
    for (const QSharedPointer<IFile> &file : m_files)
        sources.append(file->absoluteFilePath());
    m_drive = driveAt(target);
    m_result = TransferProgress(this).run(sources, target, m_drive.mount.device);
}
