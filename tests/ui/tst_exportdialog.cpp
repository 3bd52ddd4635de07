#include "PanelFixture.h"
#include "support/DriveFixture.h"

#include "ui/ExportDialog.h"
#include "ui/ProgressDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class tst_exportdialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusesToCopyWithoutDrive();
    void looksForDrivesUntilTheyAnswer();
    void listsAMountedStick();
    void keepsTheChosenDrive();
    void copies();
    void tellsWhyAFileCouldNotBeCopied();
    void livesWhileADriveIsSlow();
    void emptyListCopiesNothing();

private:
    QString createDesign(const QString &name, const QByteArray &content);
    static void openWith(ExportDialog *dialog, const DriveFixture &drive);
    static QString pressCopy(ExportDialog *dialog);
    static QComboBox *drivesOf(const ExportDialog &dialog)
    {
        return dialog.findChild<QComboBox *>(QStringLiteral("disksComboBox"));
    }
    static QPushButton *copyButtonOf(const ExportDialog &dialog)
    {
        return dialog.findChild<QPushButton *>(QStringLiteral("copyButton"));
    }

    std::unique_ptr<QTemporaryDir> m_designs;
};

void tst_exportdialog::init()
{
    m_designs = std::make_unique<QTemporaryDir>();
}

QString tst_exportdialog::createDesign(const QString &name, const QByteArray &content)
{
    QFile file(m_designs->filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

/** Chooses @p drive in the dialog's list, also where it is none that would be offered. */
void tst_exportdialog::openWith(ExportDialog *dialog, const DriveFixture &drive)
{
    QComboBox *drives = drivesOf(*dialog);
    if (drive.isFat()) {
        QTRY_VERIFY(drives->findData(drive.path()) >= 0);
    } else {
        drives->clear();
        drives->addItem(QStringLiteral("stick"), drive.path());
        copyButtonOf(*dialog)->setEnabled(true);
    }
    drives->setCurrentIndex(drives->findData(drive.path()));
}

/** The texts of the message that the dialog ended with, if any. */
QString tst_exportdialog::pressCopy(ExportDialog *dialog)
{
    auto *copy = dialog->findChild<QPushButton *>(QStringLiteral("copyButton"));
    QString message;
    QTimer answer;
    connect(&answer, &QTimer::timeout, &answer, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            message = box->text() + QLatin1Char('|') + box->informativeText();
            message.remove(QChar(0x200b)); // where a long word may be broken
            box->button(QMessageBox::Ok)->click();
        }
    });
    answer.start(10);
    QTimer::singleShot(0, copy, &QPushButton::click);
    const int result = dialog->exec();
    return result == QDialog::Accepted ? message : QStringLiteral("not accepted");
}

void tst_exportdialog::refusesToCopyWithoutDrive()
{
    const auto project = projectWithFiles({createDesign(QStringLiteral("rose.dst"), "rose")});
    ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({}));
    QCOMPARE(drivesOf(dialog)->currentText(), QStringLiteral("No removable USB drive found"));
    QVERIFY(!drivesOf(dialog)->isEnabled());
    QVERIFY(!copyButtonOf(dialog)->isEnabled());
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label"))->text(),
             QStringLiteral("1 file(s) will be copied."));
    auto *cancel = dialog.findChild<QPushButton *>(QStringLiteral("cancelButton"));
    QTimer::singleShot(0, cancel, &QPushButton::click);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(dialog.transferResult().copied, 0);
}

void tst_exportdialog::looksForDrivesUntilTheyAnswer()
{
    DriveFixture stick;
    if (!stick.hang())
        QSKIP("No FAT image can be made to hang here.");
    {
        ExportDialog dialog(nullptr, {}, DriveFixture::volumes({&stick}));
        QCOMPARE(drivesOf(dialog)->currentText(), QStringLiteral("Looking for drives..."));
        QVERIFY(!copyButtonOf(dialog)->isEnabled());
        stick.resume();
        QTRY_VERIFY(drivesOf(dialog)->findData(stick.path()) >= 0);
        QVERIFY(stick.hang());
        dialog.refreshDriveList();
    }
    // It closes without the answer.
    stick.resume();
}

void tst_exportdialog::listsAMountedStick()
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
    QTRY_COMPARE(drives->currentText(), QStringLiteral("No removable USB drive found"));
    QVERIFY(!copyButtonOf(dialog)->isEnabled());
}

void tst_exportdialog::keepsTheChosenDrive()
{
    DriveFixture first;
    DriveFixture second;
    if (!second.isFat())
        QSKIP("No FAT image can be mounted here.");
    ExportDialog dialog(nullptr, {}, DriveFixture::volumes({&first, &second}));
    QComboBox *drives = drivesOf(dialog);
    QTRY_COMPARE(drives->count(), 2);
    drives->setCurrentIndex(1);
    QVERIFY(first.pull());
    QTRY_COMPARE(drives->count(), 1);
    QCOMPARE(drives->currentData().toString(), second.path());
    DriveFixture third;
    QCOMPARE(drives->currentData().toString(), second.path());
}

void tst_exportdialog::copies()
{
    DriveFixture drive;
    const auto project = projectWithFiles({createDesign(QStringLiteral("rose.dst"), "rose"),
                                           createDesign(QStringLiteral("leaf.dst"), "leaf")});
    ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
    openWith(&dialog, drive);
    QCOMPARE(pressCopy(&dialog), QString());
    QCOMPARE(drive.files(), (QStringList{QStringLiteral("leaf.dst"), QStringLiteral("rose.dst")}));
    QCOMPARE(dialog.transferResult().copied, 2);
    QCOMPARE(dialog.drive().rootPath, drive.path());
}

void tst_exportdialog::tellsWhyAFileCouldNotBeCopied()
{
    DriveFixture drive;
    const auto project = projectWithFiles(
        {createDesign(QStringLiteral("a.dst"), "a"), m_designs->filePath(QStringLiteral("b.dst"))});
    ExportDialog dialog(nullptr, project->files(), DriveFixture::volumes({&drive}));
    openWith(&dialog, drive);
    QCOMPARE(pressCopy(&dialog), QStringLiteral("Failed to copy file b.dst|Cannot copy file to "
                                                "%1\n\nThe file is no longer in its folder.")
                                     .arg(drive.path()));
    QCOMPARE(dialog.transferResult().copied, 1);
}

void tst_exportdialog::livesWhileADriveIsSlow()
{
    DriveFixture drive;
    if (!drive.isFat())
        QSKIP("No FAT image can be mounted here.");
    const auto project = projectWithFiles({createDesign(QStringLiteral("rose.dst"), "rose")});
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
        if (texts.contains(QStringLiteral("File 1 of 1, 0 of 1 KB")))
            drive.resume();
    });
    look.start(10);
    QCOMPARE(pressCopy(&dialog), QString());
    QVERIFY(texts.contains(QStringLiteral("Copying file rose.dst...")));
    QCOMPARE(drive.files(), QStringList{QStringLiteral("rose.dst")});
}

void tst_exportdialog::emptyListCopiesNothing()
{
    DriveFixture drive;
    ExportDialog dialog(nullptr, {}, DriveFixture::volumes({&drive}));
    openWith(&dialog, drive);
    QCOMPARE(pressCopy(&dialog), QString());
    QVERIFY(drive.files().isEmpty());
}

QTEST_MAIN(tst_exportdialog)
#include "tst_exportdialog.moc"
