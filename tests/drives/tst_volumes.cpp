#include "drives/DriveInfo.h"
#include "drives/VolumeSource.h"
#include "support/Rows.h"

#include <QtTest>
#include <sys/sysmacros.h>
#include <unistd.h>

Q_DECLARE_METATYPE(bool DriveInfo::*)

constexpr uid_t NoOne = 65534;

class tst_volumes : public QObject
{
    Q_OBJECT

private slots:
    void readsTheTable_data()
    {
        // facts: path, type, source; none for no mount
        const Rows<QByteArray, QStringList> row("line", "facts");
        row("stick",
            QByteArray("42 27 8:17 / /media/u/STICK rw,nosuid shared:5 - vfat "
                       "/dev/sdb1 rw,uid=1000"),
            {"/media/u/STICK", "vfat", "/dev/sdb1"});
        row("no optional fields", "42 27 8:17 / /mnt rw - vfat /dev/sdb1 rw",
            {"/mnt", "vfat", "/dev/sdb1"});
        row("several", QByteArray("42 27 8:17 / /mnt rw shared:1 master:2 - vfat none rw"),
            {"/mnt", "vfat", "none"});
        row("blanks",
            QByteArray("42 27 8:17 / /media/My\\040Stick\\134\\0111 rw - vfat "
                       "/dev/sd\\303\\274 rw"),
            {"/media/My Stick\\\t1", "vfat", "/dev/sdü"});
        row("a dash for a name", "42 27 8:17 - - rw - vfat - rw", {"-", "vfat", "-"});
        row("broken escape", "42 27 8:17 / /a\\9zz\\ rw - vfat x rw", {"/a\\9zz\\", "vfat", "x"});
        row("cut off", "42 27 8:17 / /mnt rw - vfat", {});
        row("no dash", "42 27 8:17 / /mnt rw vfat /dev/sdb1 rw", {});
        row("empty", {}, {});
    }

    void readsTheTable()
    {
        QFETCH(QByteArray, line);
        QFETCH(QStringList, facts);
        const QList<Mount> mounts =
            MountTable::parse("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n" + line);
        QCOMPARE(mounts.first().path, "/");
        QCOMPARE(mounts.size(), facts.isEmpty() ? 1 : 2);
        if (facts.isEmpty())
            return;
        QCOMPARE(
            (QStringList{mounts.last().path, mounts.last().fileSystemType, mounts.last().source}),
            facts);
        QCOMPARE(mounts.last().id, quint64(42));
        QCOMPARE(mounts.last().device, quint64(makedev(8, 17)));
    }

    void showsTheUppermostMountOnly()
    {
        const QList<Mount> mounts =
            MountTable::parse("1 0 8:1 / /mnt rw - ext4 /dev/sda1 rw\n2 0 8:2 / /x rw - vfat b rw\n"
                              "3 0 8:3 / /mnt rw - vfat /dev/sdb1 rw\n");
        QCOMPARE(mounts.size(), 2);
        QCOMPARE(mounts.first().path, "/x");
        QCOMPARE(mounts.last().id, quint64(3));
    }

    void findsTheMountOfAPath_data()
    {
        const Rows<QString, QString> row("path", "holder");
        row("root", "/home/u", "/");
        row("the mount itself", "/media/stick", "/media/stick");
        row("inside", "/media/stick/a/b", "/media/stick");
        row("innermost", "/media/stick/in/b", "/media/stick/in");
        row("same beginning", "/media/sticks", "/");
    }

    void findsTheMountOfAPath()
    {
        QFETCH(QString, path);
        QList<Mount> mounts;
        for (const char *place : {"/media/stick/in", "/", "/media/stick"}) {
            mounts.append(Mount());
            mounts.last().path = QString::fromLatin1(place);
        }
        QTEST(MountTable::holding(path, mounts).path, "holder");
    }

    void picksFatFileSystems_data()
    {
        const Rows<QString, bool> row("type", "picked");
        for (const char *type : {"vfat", "exfat", "MSDOS", "fuse.exfat", "fuse.fusefat"})
            row(type, type, true);
        for (const char *type : {"ext4", "nfs4", "fuse.sshfs", "autofs", "iso9660", ""})
            row(type, type, false);
    }

    void picksFatFileSystems()
    {
        QFETCH(QString, type);
        Mount mount;
        mount.path = "/media/u/STICK";
        mount.fileSystemType = type;
        QTEST(Volumes::mayBeDrive(mount), "picked");
    }

    void leavesSystemPartitionsOut_data()
    {
        const Rows<QString, QByteArray, bool> row("path", "facts", "offered");
        const QString stick = "/media/u/STICK";
        row("stick", stick, "E:ID_FS_TYPE=vfat\n", true);
        row("data partition", stick, "E:ID_PART_ENTRY_TYPE=ebd0a0a2-b9e5-4433-87c0-68b6b72699c7\n",
            true);
        row("EFI by GUID", stick,
            "S:x\nE:ID_PART_ENTRY_TYPE=c12a7328-f81f-11d2-ba4b-00a0c93ec93b\n", false);
        row("EFI by number", stick, "S:x\nE:ID_PART_ENTRY_TYPE=0xef\n", false);
        for (const char *path : {"/boot", "/boot/efi", "/boot/firmware", "/efi", "/efi/loader"})
            row(path, path, {}, false);
        row("like boot", "/bootstick", {}, true);
        row("boot elsewhere", "/media/u/boot", {}, true);
    }

    void leavesSystemPartitionsOut()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, facts);
        const QTemporaryDir directory;
        QFile file(directory.filePath("b8:17"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(facts) == facts.size());
        file.close();
        Mount mount;
        mount.path = path;
        mount.fileSystemType = "vfat";
        mount.device = makedev(8, 17);
        QTEST(Volumes::mayBeDrive(mount, directory.path()), "offered");
    }

    void choosesDrives_data()
    {
        const Rows<QString, bool DriveInfo::*, bool> row("type", "changed", "chosen");
        const auto none = static_cast<bool DriveInfo::*>(nullptr);
        row("vfat", "vfat", none, true);
        row("exFAT", "exfat", none, true);
        row("msdos", "MSDOS", none, true);
        row("ext4", "ext4", none, false);
        row("root", "vfat", &DriveInfo::root, false);
        row("invalid", "vfat", &DriveInfo::valid, false);
        row("not ready", "vfat", &DriveInfo::ready, false);
        row("read-only", "vfat", &DriveInfo::readOnly, false);
        row("denied", "vfat", &DriveInfo::denied, false);
    }

    void choosesDrives()
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

    void knowsWhatThisUserMayNotWrite()
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

    void showsDrives_data()
    {
        const Rows<QString, qint64, QString> row("name", "bytes", "text");
        constexpr qint64 megabyte = 1048576;
        row("1023 MB", "STICK", 1023 * megabyte, "STICK (1023 MB)");
        row("a byte less", "STICK", 1024 * megabyte - 1, "STICK (1023 MB)");
        row("1024 MB", "STICK", 1024 * megabyte, "STICK (1 GB)");
        row("2047 MB", "STICK", 2047 * megabyte, "STICK (1 GB)");
        row("nameless", "", 8 * megabyte, "/media/stick (8 MB)");
        row("percent", "%2 %1", 8 * megabyte, "%2 %1 (8 MB)");
    }

    void showsDrives()
    {
        QFETCH(QString, name);
        QFETCH(qint64, bytes);
        DriveInfo drive;
        drive.name = name;
        drive.rootPath = "/media/stick";
        drive.bytesTotal = bytes;
        QTEST(drive.displayText(), "text");
    }
};

QTEST_APPLESS_MAIN(tst_volumes)
#include "tst_volumes.moc"
