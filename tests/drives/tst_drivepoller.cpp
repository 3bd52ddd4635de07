#include "drives/DrivePoller.h"
#include "support/DriveFixture.h"

#include <QtTest>

namespace {

/** What a poller told last. */
struct Listed
{
    explicit Listed(DrivePoller *poller)
    {
        QObject::connect(poller, &DrivePoller::drivesListed, poller,
                         [this](const QList<DriveInfo> &drives, bool isLooking) {
                             paths.clear();
                             for (const DriveInfo &drive : drives)
                                 paths.append(drive.rootPath);
                             looking = isLooking;
                             ++times;
                         });
    }

    QStringList paths;
    bool looking = false;
    int times = 0;
};

int threadCount()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace

class tst_drivepoller : public QObject
{
    Q_OBJECT

private slots:
    void answersAtOnceWithoutDrives()
    {
        DrivePoller poller([] { return QList<Mount>(); });
        const Listed listed(&poller);
        poller.poll();
        QCOMPARE(listed.times, 1);
        QVERIFY(listed.paths.isEmpty());
        QVERIFY(!listed.looking);
    }

    void followsTheDrives()
    {
        DriveFixture stick;
        if (!stick.isFat())
            QSKIP("No FAT image can be mounted here.");
        DrivePoller poller(DriveFixture::volumes({&stick}));
        const Listed listed(&poller);
        poller.poll();
        QVERIFY(listed.paths.isEmpty());
        QVERIFY(listed.looking);
        QTRY_COMPARE(listed.paths, QStringList{stick.path()});
        QVERIFY(!listed.looking);
        QVERIFY(stick.pull());
        poller.poll();
        QVERIFY(listed.paths.isEmpty());
        QVERIFY(!listed.looking);
    }

    void leavesOutAWriteProtectedDrive()
    {
        DriveFixture stick;
        if (!stick.isFat() || !stick.protect())
            QSKIP("No FAT image can be mounted and write-protected here.");
        DrivePoller poller(DriveFixture::volumes({&stick}));
        const Listed listed(&poller);
        poller.poll();
        QTRY_VERIFY(!listed.looking);
        QVERIFY(listed.paths.isEmpty());
    }

    void aDriveThatHangsHidesNoOther()
    {
        DriveFixture dead;
        DriveFixture stick;
        if (!stick.isFat() || !dead.hang())
            QSKIP("No FAT image can be made to hang here.");
        {
            DrivePoller poller(DriveFixture::volumes({&dead, &stick}));
            const Listed listed(&poller);
            poller.poll();
            QTRY_COMPARE(listed.paths, QStringList{stick.path()});
            QVERIFY(listed.looking);

            poller.setPatience(0);
            poller.poll();
            QVERIFY(!listed.looking);
            // With so little patience it is gone as well until it has answered again.
            QTRY_COMPARE(listed.paths, QStringList{stick.path()});

            // It is asked no second time.
            const int threads = threadCount();
            for (int i = 0; i < 20; ++i)
                poller.poll();
            QTRY_VERIFY(threadCount() <= threads);

            dead.resume();
            QTRY_COMPARE(listed.paths, (QStringList{dead.path(), stick.path()}));
            QVERIFY(dead.hang());
            poller.poll();
        }
        // The poller has gone without waiting.
        dead.resume();
    }
};

QTEST_GUILESS_MAIN(tst_drivepoller)
#include "tst_drivepoller.moc"
