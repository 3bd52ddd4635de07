#include "DriveFixture.h"
#include "PanelFixture.h"

#include "support/MessageBoxes.h"
#include "ui/DriveInfo.h"
#include "ui/DrivePoller.h"
#include "ui/ExportDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(bool DriveInfo::*)

namespace {

QList<QStorageInfo> noVolumes()
{
    return {};
}

/** The drive alone, whatever else is mounted here. */
VolumeSource only(const DriveFixture &drive)
{
    return [path = drive.path()] { return QList<QStorageInfo>{QStorageInfo(path)}; };
}

/** Volumes that are told when the test allows it, as those behind a network mount that is dead. */
struct SlowVolumes
{
    VolumeSource source() const
    {
        return [asked = asked, allowed = allowed] {
            asked->release();
            allowed->acquire();
            return noVolumes();
        };
    }
    ~SlowVolumes() { allowed->release(100); }

    const std::shared_ptr<QSemaphore> asked = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> allowed = std::make_shared<QSemaphore>();
};

} // namespace

class tst_exportdialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void choosesDrives_data();
    void choosesDrives();
    void showsDrives_data();
    void showsDrives();
    void pollsInTheBackground();
    void refusesToCopyWithoutDrive();
    void listsAMountedStick();
    void copiesAndReplaces();
    void stopsAtTheFirstFailure();
    void tellsOfAFullDrive();
    void tellsOfAWriteProtectedDrive();
    void noticesAPulledDrive();
    void noticesADrivePulledSinceItWasListed();
    void leavesDesignsOnTheDriveAlone();
    void emptyListCopiesNothing();

private:
    QString createDesign(const QString &name, const QByteArray &content);
    QString transfer(const QStringList &sources, const QString &target);
    static QString pressCopy(ExportDialog *dialog);
    static QByteArray contentOf(const QString &path);

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

QByteArray tst_exportdialog::contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/** Runs the dialog as the user does; returns what pressCopy() does. */
QString tst_exportdialog::transfer(const QStringList &sources, const QString &target)
{
    const auto project = projectWithFiles(sources);
    ExportDialog dialog(nullptr, project->files(), noVolumes);
    auto *drives = dialog.findChild<QComboBox *>(QStringLiteral("disksComboBox"));
    drives->clear();
    drives->addItem(QStringLiteral("stick"), target);
    dialog.findChild<QPushButton *>(QStringLiteral("copyButton"))->setEnabled(true);
    return pressCopy(&dialog);
}

/** The texts of the message that the dialog ended with, if any. */
QString tst_exportdialog::pressCopy(ExportDialog *dialog)
{
    const MessageBoxes boxes;
    auto *copy = dialog->findChild<QPushButton *>(QStringLiteral("copyButton"));
    QTimer::singleShot(0, copy, &QPushButton::click);
    if (dialog->exec() != QDialog::Accepted)
        return QStringLiteral("not accepted");
    return boxes.count() == 0 ? QString()
                              : boxes.text() + QLatin1Char('|') + boxes.informativeText();
}

void tst_exportdialog::choosesDrives_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool DriveInfo::*>("changed");
    QTest::addColumn<bool>("chosen");
    const auto none = static_cast<bool DriveInfo::*>(nullptr);
    QTest::newRow("vfat") << QStringLiteral("vfat") << none << true;
    QTest::newRow("exFAT") << QStringLiteral("exfat") << none << true;
    QTest::newRow("msdos") << QStringLiteral("MSDOS") << none << true;
    QTest::newRow("ext4") << QStringLiteral("ext4") << none << false;
    QTest::newRow("root") << QStringLiteral("vfat") << &DriveInfo::root << false;
    QTest::newRow("invalid") << QStringLiteral("vfat") << &DriveInfo::valid << false;
    QTest::newRow("not ready") << QStringLiteral("vfat") << &DriveInfo::ready << false;
    QTest::newRow("read-only") << QStringLiteral("vfat") << &DriveInfo::readOnly << false;
}

void tst_exportdialog::choosesDrives()
{
    QFETCH(QString, type);
    QFETCH(bool DriveInfo::*, changed);
    DriveInfo drive;
    drive.fileSystemType = type;
    drive.valid = drive.ready = true;
    if (changed)
        drive.*changed = !(drive.*changed);
    QTEST(drive.mightBeUsbDrive(), "chosen");
}

void tst_exportdialog::showsDrives_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    constexpr qint64 megabyte = 1048576;
    QTest::newRow("1023 MB") << "STICK" << 1023 * megabyte << "STICK (1023 MB)";
    QTest::newRow("a byte less") << "STICK" << 1024 * megabyte - 1 << "STICK (1023 MB)";
    QTest::newRow("1024 MB") << "STICK" << 1024 * megabyte << "STICK (1 GB)";
    QTest::newRow("1536 MB") << "STICK" << 1536 * megabyte << "STICK (1 GB)";
    QTest::newRow("nameless") << "" << 8 * megabyte << "/media/stick (8 MB)";
    QTest::newRow("percent") << "%2 %1" << 8 * megabyte << "%2 %1 (8 MB)";
}

void tst_exportdialog::showsDrives()
{
    QFETCH(QString, name);
    QFETCH(qint64, bytes);
    DriveInfo drive;
    drive.name = name;
    drive.rootPath = QStringLiteral("/media/stick");
    drive.bytesTotal = bytes;
    QTEST(drive.displayText(), "text");
}

void tst_exportdialog::pollsInTheBackground()
{
    const SlowVolumes volumes;
    DrivePoller poller(volumes.source());
    QSignalSpy listed(&poller, &DrivePoller::volumesListed);
    poller.poll();
    poller.poll();
    QCOMPARE(listed.count(), 0);
    volumes.allowed->release();
    QVERIFY(listed.wait());
    QCOMPARE(listed.count(), 1);
    QCOMPARE(volumes.asked->available(), 1);
    // Nobody waits for those who get no answer any more.
    for (int i = 0; i < 50; ++i)
        DrivePoller(volumes.source()).poll();
    QVERIFY(volumes.asked->tryAcquire(51, 10'000));
}

void tst_exportdialog::refusesToCopyWithoutDrive()
{
    const auto project = projectWithFiles({createDesign(QStringLiteral("rose.dst"), "rose")});
    const SlowVolumes dead;
    ExportDialog dialog(nullptr, project->files(), dead.source());
    const auto *drives = dialog.findChild<QComboBox *>();
    QCOMPARE(drives->currentText(), QStringLiteral("No removable USB drive found"));
    QVERIFY(!drives->isEnabled());
    QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("copyButton"))->isEnabled());
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label"))->text(),
             QStringLiteral("1 file(s) will be copied."));
    auto *cancel = dialog.findChild<QPushButton *>(QStringLiteral("cancelButton"));
    QTimer::singleShot(0, cancel, &QPushButton::click);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_exportdialog::listsAMountedStick()
{
    const auto project = projectOfSize(1);
    DriveFixture stick;
    if (!stick.isFat())
        QSKIP("No FAT image can be mounted here.");
    ExportDialog dialog(nullptr, project->files(), only(stick));
    auto *drives = dialog.findChild<QComboBox *>();
    QTRY_VERIFY(drives->findData(stick.path()) >= 0);
    QCOMPARE(drives->itemText(drives->findData(stick.path())),
             QStringLiteral("%1 (1 MB)").arg(stick.path()));
    QVERIFY(dialog.findChild<QPushButton *>(QStringLiteral("copyButton"))->isEnabled());
    QVERIFY(stick.pull());
    QTRY_VERIFY(drives->findData(stick.path()) < 0);
}

void tst_exportdialog::copiesAndReplaces()
{
    DriveFixture drive;
    qInfo("%s", drive.description());
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    const QStringList leaves{createDesign(QStringLiteral("a/leaf.pes"), "first leaf"),
                             createDesign(QStringLiteral("b/leaf.pes"), "second")};
    QVERIFY(QFile::copy(leaves.first(), drive.filePath(QStringLiteral("rose.dst"))));
    QCOMPARE(transfer(QStringList(rose) + leaves, drive.path()), QString());
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("rose.dst"))), QByteArray("rose"));
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("leaf.pes"))), QByteArray("second"));
    QCOMPARE(drive.files().size(), 2);
}

void tst_exportdialog::stopsAtTheFirstFailure()
{
    DriveFixture drive;
    const QStringList sources{createDesign(QStringLiteral("a.dst"), "a"),
                              m_designs->filePath(QStringLiteral("vanished.dst")),
                              createDesign(QStringLiteral("z.dst"), "z")};
    QCOMPARE(transfer(sources, drive.path()),
             QStringLiteral("Failed to copy file vanished.dst|Cannot copy file to %1")
                 .arg(drive.path()));
    QCOMPARE(drive.files(), QStringList{QStringLiteral("a.dst")});
}

void tst_exportdialog::tellsOfAFullDrive()
{
    DriveFixture drive;
    if (!drive.isMounted())
        QSKIP("Nothing can be mounted here.");
    const QString big = createDesign(QStringLiteral("big.dst"), QByteArray(3 * 1024 * 1024, 'x'));
    QVERIFY(
        transfer({big}, drive.path()).startsWith(QStringLiteral("Failed to copy file big.dst")));
    QVERIFY(drive.files().isEmpty());
}

void tst_exportdialog::tellsOfAWriteProtectedDrive()
{
    DriveFixture drive;
    if (!drive.protect())
        QSKIP("No drive can be write-protected here.");
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    QVERIFY(
        transfer({rose}, drive.path()).startsWith(QStringLiteral("Failed to copy file rose.dst")));
}

void tst_exportdialog::noticesAPulledDrive()
{
    DriveFixture drive;
    if (!drive.isMounted())
        QSKIP("Nothing can be mounted here.");
    // The same design over and over, so that the copying goes on until the drive is gone.
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    QStringList sources;
    for (int i = 0; i < 5000; ++i)
        sources += rose;
    QTimer pull;
    bool pulled = false;
    connect(&pull, &QTimer::timeout, &pull, [&] {
        if (!pulled && !drive.files().isEmpty())
            pulled = drive.pull();
    });
    pull.start(10);
    QCOMPARE(
        transfer(sources, drive.path()),
        QStringLiteral("Failed to copy file rose.dst|Cannot copy file to %1").arg(drive.path()));
    QVERIFY(pulled);
    QVERIFY(drive.files().isEmpty());
}

void tst_exportdialog::noticesADrivePulledSinceItWasListed()
{
    DriveFixture stick;
    if (!stick.isFat())
        QSKIP("No FAT image can be mounted here.");
    const auto project = projectWithFiles({createDesign(QStringLiteral("rose.dst"), "rose")});
    ExportDialog dialog(nullptr, project->files(), only(stick));
    auto *drives = dialog.findChild<QComboBox *>();
    QTRY_VERIFY(drives->findData(stick.path()) >= 0);
    drives->setCurrentIndex(drives->findData(stick.path()));
    QVERIFY(stick.pull());
    QCOMPARE(
        pressCopy(&dialog),
        QStringLiteral("Failed to copy file rose.dst|Cannot copy file to %1").arg(stick.path()));
    QVERIFY(stick.files().isEmpty());
}

void tst_exportdialog::leavesDesignsOnTheDriveAlone()
{
    DriveFixture drive;
    QFile design(drive.filePath(QStringLiteral("rose.dst")));
    QVERIFY(design.open(QIODevice::WriteOnly));
    design.write("the only copy");
    design.close();
    QCOMPARE(transfer({design.fileName()}, drive.path()), QString());
    QCOMPARE(contentOf(design.fileName()), QByteArray("the only copy"));
}

void tst_exportdialog::emptyListCopiesNothing()
{
    DriveFixture drive;
    QCOMPARE(transfer({}, drive.path()), QString());
    QVERIFY(drive.files().isEmpty());
}

QTEST_MAIN(tst_exportdialog)
#include "tst_exportdialog.moc"
