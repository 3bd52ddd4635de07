#pragma once

#include "ui/DrivePoller.h"

#include <memory>
#include <QDialog>
#include <QList>
#include <QSharedPointer>
#include <QStorageInfo>
#include <QTimer>

class IFile;

namespace Ui {
class ExportDialogUI;
}

/** Copies design files onto a removable drive that the user picks. */
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    ExportDialog(QWidget *parent, const QList<QSharedPointer<IFile>> &files,
                 VolumeSource volumes = &QStorageInfo::mountedVolumes);
    ~ExportDialog() override;

    static bool mightBeUsbDrive(const QStorageInfo &volume);

public slots:
    /** Asks for the drives that are mounted now; the list follows shortly. */
    void refreshDriveList();

    /** Copies the files, tells of a failure and closes. */
    void accept() override;

private:
    void updateDriveList(const QList<QStorageInfo> &volumes);
    void fillDriveList();
    QStorageInfo volumeAt(const QString &target) const;
    QString copyTo(const QString &target);

    const std::unique_ptr<Ui::ExportDialogUI> m_ui;
    DrivePoller *m_poller;
    QTimer m_timer;
    QList<QStorageInfo> m_volumes;
    const QList<QSharedPointer<IFile>> m_files;
};
