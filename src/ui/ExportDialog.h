#pragma once

#include "drives/DriveInfo.h"
#include "drives/TransferResult.h"
#include "drives/VolumeSource.h"

#include <memory>
#include <QDialog>
#include <QList>
#include <QSharedPointer>
#include <QTimer>

class DrivePoller;
class IFile;
class QStorageInfo;
class StatusActivity;

namespace Ui {
class ExportDialogUI;
}

/** Copies design files onto a removable drive that the user picks. */
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param volumes where to look for drives */
    ExportDialog(QWidget *parent, const QList<QSharedPointer<IFile>> &files,
                 const VolumeSource &volumes = Volumes::mounted);
    ~ExportDialog() override;

    static bool mightBeUsbDrive(const QStorageInfo &volume);

    /** What was copied; nothing, when the dialog was cancelled. */
    TransferResult transferResult() const { return m_result; }

    /** Where it was copied to; an empty one when nothing was. */
    DriveInfo drive() const { return m_drive; }

public slots:
    /** Asks for the drives that are mounted now; the list follows shortly. */
    void refreshDriveList();

    /** Copies the files, tells of a failure and closes. */
    void accept() override;

private:
    void updateDriveList(const QList<DriveInfo> &drives, bool looking);
    void fillDriveList();
    void tellSearch(bool looking);
    DriveInfo driveAt(const QString &target) const;
    void copyTo(const QString &target);

    const std::unique_ptr<Ui::ExportDialogUI> m_ui;
    DrivePoller *m_poller;
    QTimer m_timer;
    QList<DriveInfo> m_drives;
    bool m_looking = true;
    std::unique_ptr<StatusActivity> m_search; ///< while it is told that drives are looked for
    const QList<QSharedPointer<IFile>> m_files;
    DriveInfo m_drive;
    TransferResult m_result;
};
