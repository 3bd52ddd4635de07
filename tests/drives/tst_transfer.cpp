#include "drives/TransferJob.h"
#include "support/CatalogueFolder.h"
#include "support/DriveFixture.h"
#include "support/Rows.h"

#include <QtTest>

#include <atomic>
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

Q_DECLARE_METATYPE(DriveFixture::Wanted)

static std::atomic<int> syncError{0};

/** Takes the place of the system's: no drive breaks on demand. */
int syncfs(int folder) noexcept
{
    if (syncError == 0)
        return int(syscall(SYS_syncfs, folder));
    errno = syncError;
    return -1;
}

class tst_transfer : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_designs = std::make_unique<QTemporaryDir>(); }

    void copiesAndReplaces()
    {
        DriveFixture drive;
        qInfo("%s", drive.description());
        const QString rose = createDesign("rose.dst", "rose");
        const QString leaf = createDesign("green leaf.pes", QByteArray(600000, 'l'));
        QVERIFY(QFile::copy(leaf, drive.filePath("rose.dst")));
        QVERIFY(QFile::copy(rose, drive.filePath(".hoopline-999999999-1.part")));

        const TransferResult result = transfer({rose, leaf}, drive.path(), drive.mount().device);
        QCOMPARE(result.reasonText(), QString());
        QCOMPARE(result.copied, 2);
        QCOMPARE(CatalogueFolder::read(drive.filePath("rose.dst")), "rose");
        QCOMPARE(CatalogueFolder::read(drive.filePath("green leaf.pes")), QByteArray(600000, 'l'));
        QCOMPARE(drive.files().size(), 2);
        QCOMPARE(transfer({}, drive.path()).copied, 0);
    }

    void countsWhatGivesWayToALaterOne()
    {
        DriveFixture drive;
        const QStringList leaves{createDesign("a/leaf.pes", "first leaf"),
                                 createDesign("b/Leaf.PES", "second"),
                                 createDesign("c/leaf.pes", "third")};
        const TransferResult result = transfer(leaves, drive.path());
        QCOMPARE(result.copied, 3);
        QCOMPARE(result.replacedByLater, 2);
        if (drive.isFat())
            QCOMPARE(drive.files().size(), 1);
        QCOMPARE(CatalogueFolder::read(drive.filePath("leaf.pes")), "third");
    }

    void stopsAtTheFirstFailure()
    {
        DriveFixture drive;
        const QStringList sources{createDesign("a.dst", "a"), m_designs->filePath("vanished.dst"),
                                  createDesign("z.dst", "z")};
        const TransferResult result = transfer(sources, drive.path());
        QCOMPARE(result.reason, TransferResult::SourceGone);
        QCOMPARE(result.failedName, "vanished.dst");
        QCOMPARE(result.copied, 1);
        QCOMPARE(result.total, 3);
        QCOMPARE(drive.files(), QStringList{"a.dst"});
    }

    void refusesNames_data()
    {
        const Rows<QString, bool> row("name", "allowed");
        for (const char *name : {"a:b.pes", "why?.pes", "a\"b.pes", "star*.pes", "<.pes", "a|b.pes",
                                 "back\\slash.pes", "line\nbreak.pes"})
            row(name, QString::fromUtf8(name), false);
        row("allowed", "a + b, [c] = d.pes", true);
        row("longest", QString(251, QLatin1Char('x')) + ".pes", true);
    }

    void refusesNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, allowed);
        DriveFixture drive;
        const TransferResult result = transfer({createDesign(name, "a")}, drive.path());
        QCOMPARE(result.reason, allowed ? TransferResult::None : TransferResult::NameNotAllowed);
        QCOMPARE(drive.files(), allowed ? QStringList{name} : QStringList());
    }

    void keepsTheOldFileWhenTheDriveIsFull_data()
    {
        const Rows<DriveFixture::Wanted> row("wanted");
        row("FAT", DriveFixture::BestThereIs);
        row("memory", DriveFixture::InMemory);
    }

    void keepsTheOldFileWhenTheDriveIsFull()
    {
        QFETCH(DriveFixture::Wanted, wanted);
        DriveFixture drive(wanted);
        if (!drive.isMounted())
            QSKIP("Nothing can be mounted here.");
        QVERIFY(QFile::copy(createDesign("old", "the old rose"), drive.filePath("rose.dst")));
        const QStringList sources{createDesign("bud.dst", "bud"),
                                  createDesign("rose.dst", QByteArray(3 * 1024 * 1024, 'x'))};
        const TransferResult result = transfer(sources, drive.path());
        QCOMPARE(result.reason, TransferResult::NoSpace);
        QCOMPARE(result.failedName, "rose.dst");
        QCOMPARE(CatalogueFolder::read(drive.filePath("rose.dst")), "the old rose");
        QCOMPARE(drive.files(), (QStringList{"bud.dst", "rose.dst"}));
    }

    void tellsOfAFullFolder()
    {
        DriveFixture drive(DriveFixture::RoomForTwoFiles);
        if (!drive.isMounted())
            QSKIP("Nothing can be mounted here.");
        QStringList sources;
        for (const char *name : {"a.dst", "b.dst", "c.dst"})
            sources += createDesign(QString::fromLatin1(name), "x");
        const TransferResult result = transfer(sources, drive.path());
        QCOMPARE(result.reason, TransferResult::FolderFull);
        QCOMPARE(result.copied, 2);
    }

    void tellsOfAWriteProtectedDrive()
    {
        DriveFixture drive;
        if (!drive.protect())
            QSKIP("No drive can be write-protected here.");
        const QString rose = createDesign("rose.dst", "rose");
        QCOMPARE(transfer({rose}, drive.path()).reason, TransferResult::NotWritable);
    }

    void tellsOfAnUnreadableDesign()
    {
        DriveFixture drive;
        // A folder is what nobody can read as a file, not even root.
        QDir().mkpath(m_designs->filePath("folder.dst"));
        const TransferResult result = transfer({m_designs->filePath("folder.dst")}, drive.path());
        QCOMPARE(result.reason, TransferResult::SourceUnreadable);
        QVERIFY(drive.files().isEmpty());
    }

    void tellsOfWhatDoesNotReachTheDrive()
    {
        DriveFixture drive;
        const QString rose = createDesign("rose.dst", "rose");
        syncError = ENOSPC;
        const TransferResult result = transfer({rose}, drive.path());
        syncError = 0;
        QCOMPARE(result.reason, TransferResult::NoSpace);
        QCOMPARE(result.failedName, "rose.dst");
    }

    void noticesAPulledDrive()
    {
        DriveFixture drive;
        if (!drive.isMounted())
            QSKIP("Nothing can be mounted here.");
        // The same design over and over, so that the copying goes on until the drive is gone.
        const QString rose = createDesign("rose.dst", "rose");
        QStringList sources;
        for (int i = 0; i < 100000; ++i)
            sources += rose;
        TransferJob job(sources, drive.path(), drive.mount().device);
        QSignalSpy finished(&job, &TransferJob::finished);
        job.start();
        QTRY_VERIFY(job.progress().begun > 3);
        QVERIFY(drive.pull());
        QVERIFY(finished.wait(30000));
        QCOMPARE(job.result().reason, TransferResult::DriveGone);
        QVERIFY(job.result().copied > 0);
        // The folder below it has taken nothing.
        QVERIFY(drive.files().isEmpty());
    }

    void leavesAnotherDriveInItsPlaceAlone()
    {
        DriveFixture drive;
        if (!drive.isMounted())
            QSKIP("Nothing can be mounted here.");
        const QString rose = createDesign("rose.dst", "rose");
        const quint64 listed = drive.mount().device;
        QVERIFY(drive.pull());
        QCOMPARE(transfer({rose}, drive.path(), listed).reason, TransferResult::DriveGone);
        QVERIFY(drive.files().isEmpty());
    }

    void leavesDesignsOnTheDriveAlone()
    {
        DriveFixture drive;
        QFile design(drive.filePath("rose.dst"));
        QVERIFY(design.open(QIODevice::WriteOnly) && design.write("the only copy") > 0);
        design.close();
        QCOMPARE(transfer({design.fileName()}, drive.path()).copied, 1);
        QCOMPARE(CatalogueFolder::read(design.fileName()), "the only copy");
    }

    void tellsHowFarItIs()
    {
        DriveFixture drive;
        const QStringList sources{createDesign("a.dst", QByteArray(300000, 'a')),
                                  createDesign("b.dst", QByteArray(5000, 'b'))};
        TransferJob job(sources, drive.path(), 0);
        QCOMPARE(job.progress().begun, 0);
        QSignalSpy finished(&job, &TransferJob::finished);
        job.start();
        QVERIFY(finished.wait());
        QCOMPARE(job.progress().begun, 2);
        QCOMPARE(job.progress().bytes, qint64(305000));
        QCOMPARE(job.progress().totalBytes, qint64(305000));
    }

    void doesNotWaitForADriveThatHangs()
    {
        DriveFixture drive;
        if (!drive.hang())
            QSKIP("No FAT image can be made to hang here.");
        const QString rose = createDesign("rose.dst", "rose");
        {
            TransferJob job({rose}, drive.path(), drive.mount().device);
            job.start();
            QTRY_COMPARE(job.progress().begun, 1);
        }
        drive.resume();
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

    static TransferResult transfer(const QStringList &sources, const QString &target,
                                   quint64 device = 0)
    {
        TransferJob job(sources, target, device);
        QSignalSpy finished(&job, &TransferJob::finished);
        job.start();
        if (!finished.wait(30000))
            qWarning("the transfer does not end");
        return job.result();
    }

    std::unique_ptr<QTemporaryDir> m_designs;
};

QTEST_GUILESS_MAIN(tst_transfer)
#include "tst_transfer.moc"
