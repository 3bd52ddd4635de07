#include "PanelFixture.h"
#include "support/CatalogueFolder.h"
#include "support/DriveFixture.h"
#include "support/MessageBoxes.h"

#include "ui/ExportDialog.h"
#include "ui/ProgressDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_exportdialog : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_designs = std::make_unique<QTemporaryDir>(); }

    void refusesToCopyWithoutDrive()
    {
        const auto project = projectWithFiles({createDesign("rose.dst", "rose")});
        ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({}));
        QCOMPARE(drivesOf(dialog)->currentText(), "No removable USB drive found");
        QVERIFY(!drivesOf(dialog)->isEnabled());
        QVERIFY(!copyButtonOf(dialog)->isEnabled());
        QCOMPARE(dialog.findChild<QLabel *>("label")->text(), "1 file(s) will be copied.");
        auto *cancel = dialog.findChild<QPushButton *>("cancelButton");
        QTimer::singleShot(0, cancel, &QPushButton::click);
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(dialog.transferResult().copied, 0);
    }

    void looksForDrivesUntilTheyAnswer()
    {
        DriveFixture stick;
        if (!stick.hang())
            QSKIP("No FAT image can be made to hang here.");
        {
            ExportDialog dialog(nullptr, {}, DriveFixture::volumes({&stick}));
            QCOMPARE(drivesOf(dialog)->currentText(), "Looking for drives...");
            QVERIFY(!copyButtonOf(dialog)->isEnabled());
            stick.resume();
            QTRY_VERIFY(drivesOf(dialog)->findData(stick.path()) >= 0);
            QVERIFY(stick.hang());
            dialog.refreshDriveList();
        }
        // It closes without the answer.
        stick.resume();
    }

    void listsAMountedStick()
    {
        DriveFixture stick;
        if (!stick.isFat())
            QSKIP("No FAT image can be mounted here.");
        ExportDialog dialog(nullptr, projectOfSize(1)->files(), DriveFixture::volumes({&stick}));
        QComboBox *drives = drivesOf(dialog);
        QTRY_VERIFY(drives->findData(stick.path()) >= 0);
        QCOMPARE(drives->itemText(drives->findData(stick.path())),
                 QStringLiteral("%1 (1 MB)").arg(stick.path()));
        QVERIFY(copyButtonOf(dialog)->isEnabled());
        QCOMPARE(dialog.focusWidget(), drives);
        QVERIFY(stick.pull());
        QTRY_COMPARE(drives->currentText(), "No removable USB drive found");
        QVERIFY(!copyButtonOf(dialog)->isEnabled());
    }

    void keepsTheChosenDrive()
    {
        DriveFixture first;
        DriveFixture second;
        DriveFixture third;
        if (!third.isFat())
            QSKIP("No FAT image can be mounted here.");
        ExportDialog dialog(nullptr, {}, DriveFixture::volumes({&first, &second, &third}));
        QComboBox *drives = drivesOf(dialog);
        QTRY_COMPARE(drives->count(), 3);
        drives->setCurrentIndex(2);
        QVERIFY(first.pull());
        QTRY_COMPARE(drives->count(), 2);
        QCOMPARE(drives->currentData().toString(), third.path());
    }

    void copies()
    {
        DriveFixture drive;
        const auto project =
            projectWithFiles({createDesign("rose.dst", "rose"), createDesign("leaf.dst", "leaf")});
        ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
        openWith(&dialog, drive);
        QCOMPARE(pressCopy(&dialog), QString());
        QCOMPARE(drive.files(), (QStringList{"leaf.dst", "rose.dst"}));
        QCOMPARE(dialog.transferResult().copied, 2);
        QCOMPARE(dialog.drive().rootPath, drive.path());
    }

    void tellsWhyAFileCouldNotBeCopied()
    {
        DriveFixture drive;
        const auto project =
            projectWithFiles({createDesign("a.dst", "a"), m_designs->filePath("b.dst")});
        ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
        openWith(&dialog, drive);
        QCOMPARE(pressCopy(&dialog), QStringLiteral("Failed to copy file b.dst|Cannot copy file to "
                                                    "%1\n\nThe file is no longer in its folder.")
                                         .arg(drive.path()));
        QCOMPARE(dialog.transferResult().copied, 1);
    }

    void copiesNothingBesideAPulledDrive()
    {
        DriveFixture drive;
        if (!drive.isFat())
            QSKIP("No FAT image can be mounted here.");
        const auto project = projectWithFiles({createDesign("rose.dst", "rose")});
        ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
        openWith(&dialog, drive);
        QVERIFY(drive.pull());
        QVERIFY(pressCopy(&dialog).endsWith("The drive is no longer there."));
        QCOMPARE(drive.files(), QStringList());
    }

    void livesWhileADriveIsSlow()
    {
        DriveFixture drive;
        if (!drive.isFat())
            QSKIP("No FAT image can be mounted here.");
        const auto project = projectWithFiles({createDesign("rose.dst", "rose")});
        ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
        openWith(&dialog, drive);
        if (!drive.hang())
            QSKIP("No FAT image can be made to hang here.");
        QTimer look;
        QStringList texts;
        connect(&look, &QTimer::timeout, &dialog, [&] {
            auto *progress = dialog.findChild<ProgressDialog *>();
            if (!progress || !progress->isVisible())
                return;
            texts.clear();
            for (const QLabel *label : progress->findChildren<QLabel *>())
                texts.append(label->text());
            QTest::keyClick(progress, Qt::Key_Escape);
            if (texts.contains("File 1 of 1, 0 of 1 KB"))
                drive.resume();
        });
        look.start(10);
        QCOMPARE(pressCopy(&dialog), QString());
        QVERIFY(texts.contains("Copying file rose.dst..."));
        QCOMPARE(drive.files(), QStringList{"rose.dst"});
    }

private:
    QString createDesign(const QString &name, const QByteArray &content)
    {
        const QString path = m_designs->filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        if (!CatalogueFolder::write(path, content))
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    /** Chooses @p drive in the dialog's list, also where it is none that would be offered. */
    static void openWith(ExportDialog *dialog, const DriveFixture &drive)
    {
        QComboBox *drives = drivesOf(*dialog);
        if (drive.isFat()) {
            QTRY_VERIFY(drives->findData(drive.path()) >= 0);
        } else {
            drives->clear();
            drives->addItem("stick", drive.path());
            copyButtonOf(*dialog)->setEnabled(true);
        }
        drives->setCurrentIndex(drives->findData(drive.path()));
    }

    /** The texts of the message that the dialog ended with, if any. */
    static QString pressCopy(ExportDialog *dialog)
    {
        const MessageBoxes boxes;
        QTimer::singleShot(0, copyButtonOf(*dialog), &QPushButton::click);
        if (dialog->exec() != QDialog::Accepted)
            return "not accepted";
        return boxes.count() > 0 ? boxes.text() + '|' + boxes.informativeText() : QString();
    }

    static QComboBox *drivesOf(const ExportDialog &dialog)
    {
        return dialog.findChild<QComboBox *>("disksComboBox");
    }
    static QPushButton *copyButtonOf(const ExportDialog &dialog)
    {
        return dialog.findChild<QPushButton *>("copyButton");
    }

    std::unique_ptr<QTemporaryDir> m_designs;
};

QTEST_MAIN(tst_exportdialog)
#include "tst_exportdialog.moc"
