#include "drives/DriveInfo.h"
#include "drives/VolumeSource.h"

#include <QStorageInfo>
#include <QTemporaryDir>
#include <QtTest>
#include <sys/sysmacros.h>
#include <unistd.h>

Q_DECLARE_METATYPE(bool DriveInfo::*)

namespace {

constexpr uid_t NoOne = 65534;

} // namespace

class tst_volumes : public QObject
{
    Q_OBJECT

private slots:
    void readsTheTable_data();
    void readsTheTable();
    void showsTheUppermostMountOnly();
    void findsTheMountOfAPath_data();
    void findsTheMountOfAPath();
    void picksFatFileSystems_data();
    void picksFatFileSystems();
    void leavesSystemPartitionsOut_data();
    void leavesSystemPartitionsOut();
    void choosesDrives_data();
    void choosesDrives();
    void knowsWhatThisUserMayNotWrite();
    void showsDrives_data();
    void showsDrives();
};

void tst_volumes::readsTheTable_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QStringList>("facts"); // path, type, source; none for no mount
    QTest::newRow("stick") << QByteArray("42 27 8:17 / /media/u/STICK rw,nosuid shared:5 - vfat "
                                         "/dev/sdb1 rw,uid=1000")
                           << QStringList{"/media/u/STICK", "vfat", "/dev/sdb1"};
    QTest::newRow("no optional fields") << QByteArray("42 27 8:17 / /mnt rw - vfat /dev/sdb1 rw")
                                        << QStringList{"/mnt", "vfat", "/dev/sdb1"};
    QTest::newRow("several") << QByteArray("42 27 8:17 / /mnt rw shared:1 master:2 - vfat none rw")
                             << QStringList{"/mnt", "vfat", "none"};
    QTest::newRow("blanks") << QByteArray("42 27 8:17 / /media/My\\040Stick\\134\\0111 rw - vfat "
                                          "/dev/sd\\303\\274 rw")
                            << QStringList{"/media/My Stick\\\t1", "vfat", "/dev/sdü"};
    QTest::newRow("a dash for a name")
        << QByteArray("42 27 8:17 - - rw - vfat - rw") << QStringList{"-", "vfat", "-"};
    QTest::newRow("broken escape") << QByteArray("42 27 8:17 / /a\\9zz\\ rw - vfat x rw")
                                   << QStringList{"/a\\9zz\\", "vfat", "x"};
    QTest::newRow("cut off") << QByteArray("42 27 8:17 / /mnt rw - vfat") << QStringList();
    QTest::newRow("no dash") << QByteArray("42 27 8:17 / /mnt rw vfat /dev/sdb1 rw")
                             << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList();
}

void tst_volumes::readsTheTable()
{
    QFETCH(QByteArray, line);
    QFETCH(QStringList, facts);
    const QList<Mount> mounts = MountTable::parse("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n" + line);
    QCOMPARE(mounts.first().path, QStringLiteral("/"));
    QCOMPARE(mounts.size(), facts.isEmpty() ? 1 : 2);
    if (facts.isEmpty())
        return;
    QCOMPARE((QStringList{mounts.last().path, mounts.last().fileSystemType, mounts.last().source}),
             facts);
    QCOMPARE(mounts.last().id, quint64(42));
    QCOMPARE(mounts.last().device, quint64(makedev(8, 17)));
}

void tst_volumes::showsTheUppermostMountOnly()
{
    const QList<Mount> mounts =
        MountTable::parse("1 0 8:1 / /mnt rw - ext4 /dev/sda1 rw\n2 0 8:2 / /x rw - vfat b rw\n"
                          "3 0 8:3 / /mnt rw - vfat /dev/sdb1 rw\n");
    QCOMPARE(mounts.size(), 2);
    QCOMPARE(mounts.first().path, QStringLiteral("/x"));
    QCOMPARE(mounts.last().id, quint64(3));
}

void tst_volumes::findsTheMountOfAPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("holder");
    QTest::newRow("root") << "/home/u"
                          << "/";
    QTest::newRow("the mount itself") << "/media/stick"
                                      << "/media/stick";
    QTest::newRow("inside") << "/media/stick/a/b"
                            << "/media/stick";
    QTest::newRow("innermost") << "/media/stick/in/b"
                               << "/media/stick/in";
    QTest::newRow("same beginning") << "/media/sticks"
                                    << "/";
}

void tst_volumes::findsTheMountOfAPath()
{
    QFETCH(QString, path);
    QList<Mount> mounts;
    for (const char *place : {"/media/stick/in", "/", "/media/stick"}) {
        mounts.append(Mount());
        mounts.last().path = QString::fromLatin1(place);
    }
    QTEST(MountTable::holding(path, mounts).path, "holder");
}

void tst_volumes::picksFatFileSystems_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("picked");
    for (const char *type : {"vfat", "exfat", "MSDOS", "fuse.exfat", "fuse.fusefat"})
        QTest::newRow(type) << type << true;
    for (const char *type : {"ext4", "nfs4", "fuse.sshfs", "autofs", "iso9660", ""})
        QTest::newRow(type) << type << false;
}

void tst_volumes::picksFatFileSystems()
{
    QFETCH(QString, type);
    Mount mount;
    mount.path = QStringLiteral("/media/u/STICK");
    mount.fileSystemType = type;
    QTEST(Volumes::mayBeDrive(mount), "picked");
}

void tst_volumes::leavesSystemPartitionsOut_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("facts");
    QTest::addColumn<bool>("offered");
    const QString stick = QStringLiteral("/media/u/STICK");
    QTest::newRow("stick") << stick << QByteArray("E:ID_FS_TYPE=vfat\n") << true;
    QTest::newRow("data partition")
        << stick << QByteArray("E:ID_PART_ENTRY_TYPE=ebd0a0a2-b9e5-4433-87c0-68b6b72699c7\n")
        << true;
    QTest::newRow("EFI by GUID")
        << stick << QByteArray("S:x\nE:ID_PART_ENTRY_TYPE=c12a7328-f81f-11d2-ba4b-00a0c93ec93b\n")
        << false;
    QTest::newRow("EFI by number")
        << stick << QByteArray("S:x\nE:ID_PART_ENTRY_TYPE=0xef\n") << false;
    for (const char *path : {"/boot", "/boot/efi", "/boot/firmware", "/efi", "/efi/loader"})
        QTest::newRow(path) << path << QByteArray() << false;
    QTest::newRow("like boot") << "/bootstick" << QByteArray() << true;
    QTest::newRow("boot elsewhere") << "/media/u/boot" << QByteArray() << true;
}

void tst_volumes::leavesSystemPartitionsOut()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, facts);
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("b8:17")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(facts) == facts.size());
    file.close();
    Mount mount;
    mount.path = path;
    mount.fileSystemType = QStringLiteral("vfat");
    mount.device = makedev(8, 17);
    QTEST(Volumes::mayBeDrive(mount, directory.path()), "offered");
}

void tst_volumes::choosesDrives_data()
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
    QTest::newRow("denied") << QStringLiteral("vfat") << &DriveInfo::denied << false;
}

void tst_volumes::choosesDrives()
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

void tst_volumes::knowsWhatThisUserMayNotWrite()
{
    const QTemporaryDir directory;
    const QStorageInfo volume(directory.path());
    QVERIFY(!DriveInfo::fromVolume(volume).denied);
    // Root may do everything; whoever else runs this has no folder "/" to write to.
    const bool isRoot = ::geteuid() == 0;
    QVERIFY(!isRoot || ::setreuid(NoOne, uid_t(-1)) == 0);
    const bool denied = DriveInfo::fromVolume(QStorageInfo::root()).denied;
    QVERIFY(!isRoot || ::setreuid(0, uid_t(-1)) == 0);
    QVERIFY(denied);
}

void tst_volumes::showsDrives_data()
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

void tst_volumes::showsDrives()
{
    QFETCH(QString, name);
    QFETCH(qint64, bytes);
    DriveInfo drive;
    drive.name = name;
    drive.rootPath = QStringLiteral("/media/stick");
    drive.bytesTotal = bytes;
    QTEST(drive.displayText(), "text");
}

QTEST_APPLESS_MAIN(tst_volumes)
#include "tst_volumes.moc"
