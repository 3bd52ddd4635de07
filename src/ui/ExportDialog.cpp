#include "ui/ExportDialog.h"

#include "catalogue/records/IFile.h"
#include "ui/DriveInfo.h"
#include "ui/DriveTransfer.h"
#include "ui/ProgressDialog.h"
#include "ui_ExportDialogUI.h"
#include "widgets/controls/GMessageBox.h"

#include <QFileInfo>

namespace {

constexpr int PollInterval = 500; // milliseconds

} // namespace

ExportDialog::ExportDialog(QWidget *parent, const QList<QSharedPointer<IFile>> &files,
                           VolumeSource volumes)
    : QDialog(parent, Qt::Sheet), m_ui(std::make_unique<Ui::ExportDialogUI>()),
      m_poller(new DrivePoller(std::move(volumes), this)), m_files(files)
{
    m_ui->setupUi(this);
    m_ui->label->setText(tr("%n file(s) will be copied.", nullptr, files.size()));
    connect(m_poller, &DrivePoller::volumesListed, this, &ExportDialog::updateDriveList);
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

void ExportDialog::updateDriveList(const QList<QStorageInfo> &volumes)
{
    // An unchanged list keeps the user's choice.
    if (volumes == m_volumes)
        return;
    m_volumes = volumes;
    fillDriveList();
}

void ExportDialog::fillDriveList()
{
    m_ui->disksComboBox->clear();
    for (const QStorageInfo &volume : std::as_const(m_volumes)) {
        const DriveInfo drive = DriveInfo::fromVolume(volume);
        if (drive.mightBeUsbDrive())
            m_ui->disksComboBox->addItem(drive.displayText(), drive.rootPath);
    }
    const bool driveFound = m_ui->disksComboBox->count() > 0;
    if (!driveFound)
        m_ui->disksComboBox->addItem(tr("No removable USB drive found"));
    m_ui->disksComboBox->setEnabled(driveFound);
    m_ui->copyButton->setEnabled(driveFound);
}

void ExportDialog::accept()
{
    const QString target = m_ui->disksComboBox->currentData().toString();
    const QString failedName = target.isEmpty() ? QString() : copyTo(target);
    if (!failedName.isEmpty())
        GMessageBox(GMessageBox::Critical, this, tr("Failed to copy file %1").arg(failedName),
                    tr("Cannot copy file to %1").arg(target))
            .exec();
    QDialog::accept();
}

/** The volume as it was listed, which tells a drive that was pulled since. */
QStorageInfo ExportDialog::volumeAt(const QString &target) const
{
    for (const QStorageInfo &volume : m_volumes)
        if (volume.rootPath() == target)
            return volume;
    return QStorageInfo(target);
}

/** The name of the file that could not be copied; empty when all went well. */
QString ExportDialog::copyTo(const QString &target)
{
    const DriveTransfer transfer(target, volumeAt(target));
    ProgressDialog progress(this);
    progress.setSteps(m_files.size());
    progress.show();
    QString name;
    bool copied = true;
    for (const QSharedPointer<IFile> &file : m_files) {
        name = QFileInfo(file->absoluteFilePath()).fileName();
        progress.proceed(tr("Copying file %1...").arg(name));
        copied = transfer.copy(file->absoluteFilePath());
        if (!copied)
            break;
    }
    // What was copied is to be on the drive when the dialog says so, also after a failure.
    const bool flushed = m_files.isEmpty() || transfer.flush();
    progress.hide();
    return copied && flushed ? QString() : name;
}
