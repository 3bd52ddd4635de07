#include "drives/TransferJob.h"
#include "support/DriveFixture.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(DriveFixture::Wanted)

class tst_transfer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copiesAndReplaces();
    void countsWhatGivesWayToALaterOne();
    void stopsAtTheFirstFailure();
    void refusesNames_data();
    void refusesNames();
    void keepsTheOldFileWhenTheDriveIsFull_data();
    void keepsTheOldFileWhenTheDriveIsFull();
    void tellsOfAFullFolder();
    void tellsOfAWriteProtectedDrive();
    void tellsOfAnUnreadableDesign();
    void noticesAPulledDrive();
    void leavesAnotherDriveInItsPlaceAlone();
    void leavesDesignsOnTheDriveAlone();
    void tellsHowFarItIs();
    void doesNotWaitForADriveThatHangs();

private:
    QString createDesign(const QString &name, const QByteArray &content);
    static TransferResult transfer(const QStringList &sources, const QString &target,
                                   quint64 device = 0);
    static QByteArray contentOf(const QString &path);

    std::unique_ptr<QTemporaryDir> m_designs;
};

void tst_transfer::init()
{
    m_designs = std::make_unique<QTemporaryDir>();
}

QString tst_transfer::createDesign(const QString &name, const QByteArray &content)
{
    QFile file(m_designs->filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QByteArray tst_transfer::contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

TransferResult tst_transfer::transfer(const QStringList &sources, const QString &target,
                                      quint64 device)
{
    TransferJob job(sources, target, device);
    QSignalSpy finished(&job, &TransferJob::finished);
    job.start();
    if (!finished.wait(30000))
        qWarning("the transfer does not end");
    return job.result();
}

void tst_transfer::copiesAndReplaces()
{
    DriveFixture drive;
    qInfo("%s", drive.description());
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    const QString leaf = createDesign(QStringLiteral("green leaf.pes"), QByteArray(600000, 'l'));
    QVERIFY(QFile::copy(leaf, drive.filePath(QStringLiteral("rose.dst"))));
    QVERIFY(QFile::copy(rose, drive.filePath(QStringLiteral(".hoopline-999999999-1.part"))));

    const TransferResult result = transfer({rose, leaf}, drive.path(), drive.mount().device);
    QCOMPARE(result.reasonText(), QString());
    QCOMPARE(result.copied, 2);
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("rose.dst"))), QByteArray("rose"));
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("green leaf.pes"))), QByteArray(600000, 'l'));
    QCOMPARE(drive.files().size(), 2);
    QCOMPARE(transfer({}, drive.path()).copied, 0);
}

void tst_transfer::countsWhatGivesWayToALaterOne()
{
    DriveFixture drive;
    const QStringList leaves{createDesign(QStringLiteral("a/leaf.pes"), "first leaf"),
                             createDesign(QStringLiteral("b/Leaf.PES"), "second"),
                             createDesign(QStringLiteral("c/leaf.pes"), "third")};
    const TransferResult result = transfer(leaves, drive.path());
    QCOMPARE(result.copied, 3);
    QCOMPARE(result.replacedByLater, 2);
    if (drive.isFat())
        QCOMPARE(drive.files().size(), 1);
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("leaf.pes"))), QByteArray("third"));
}

void tst_transfer::stopsAtTheFirstFailure()
{
    DriveFixture drive;
    const QStringList sources{createDesign(QStringLiteral("a.dst"), "a"),
                              m_designs->filePath(QStringLiteral("vanished.dst")),
                              createDesign(QStringLiteral("z.dst"), "z")};
    const TransferResult result = transfer(sources, drive.path());
    QCOMPARE(result.reason, TransferResult::SourceGone);
    QCOMPARE(result.failedName, QStringLiteral("vanished.dst"));
    QCOMPARE(result.copied, 1);
    QCOMPARE(result.total, 3);
    QCOMPARE(drive.files(), QStringList{QStringLiteral("a.dst")});
}

void tst_transfer::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("allowed");
    for (const char *name : {"a:b.pes", "why?.pes", "a\"b.pes", "star*.pes", "<.pes", "a|b.pes",
                             "back\\slash.pes", "line\nbreak.pes"})
        QTest::newRow(name) << QString::fromUtf8(name) << false;
    QTest::newRow("allowed") << QStringLiteral("a + b, [c] = d.pes") << true;
    QTest::newRow("longest") << QString(251, QLatin1Char('x')) + QStringLiteral(".pes") << true;
}

void tst_transfer::refusesNames()
{
    QFETCH(QString, name);
    QFETCH(bool, allowed);
    DriveFixture drive;
    const TransferResult result = transfer({createDesign(name, "a")}, drive.path());
    QCOMPARE(result.reason, allowed ? TransferResult::None : TransferResult::NameNotAllowed);
    QCOMPARE(drive.files(), allowed ? QStringList{name} : QStringList());
}

void tst_transfer::keepsTheOldFileWhenTheDriveIsFull_data()
{
    QTest::addColumn<DriveFixture::Wanted>("wanted");
    QTest::newRow("FAT") << DriveFixture::BestThereIs;
    QTest::newRow("memory") << DriveFixture::InMemory;
}

void tst_transfer::keepsTheOldFileWhenTheDriveIsFull()
{
    QFETCH(DriveFixture::Wanted, wanted);
    DriveFixture drive(wanted);
    if (!drive.isMounted())
        QSKIP("Nothing can be mounted here.");
    QVERIFY(QFile::copy(createDesign(QStringLiteral("old"), "the old rose"),
                        drive.filePath(QStringLiteral("rose.dst"))));
    const QStringList sources{
        createDesign(QStringLiteral("bud.dst"), "bud"),
        createDesign(QStringLiteral("rose.dst"), QByteArray(3 * 1024 * 1024, 'x'))};
    const TransferResult result = transfer(sources, drive.path());
    QCOMPARE(result.reason, TransferResult::NoSpace);
    QCOMPARE(result.failedName, QStringLiteral("rose.dst"));
    QCOMPARE(contentOf(drive.filePath(QStringLiteral("rose.dst"))), QByteArray("the old rose"));
    QCOMPARE(drive.files(), (QStringList{QStringLiteral("bud.dst"), QStringLiteral("rose.dst")}));
}

void tst_transfer::tellsOfAFullFolder()
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

void tst_transfer::tellsOfAWriteProtectedDrive()
{
    DriveFixture drive;
    if (!drive.protect())
        QSKIP("No drive can be write-protected here.");
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    QCOMPARE(transfer({rose}, drive.path()).reason, TransferResult::NotWritable);
}

void tst_transfer::tellsOfAnUnreadableDesign()
{
    DriveFixture drive;
    // A folder is what nobody can read as a file, not even root.
    QDir().mkpath(m_designs->filePath(QStringLiteral("folder.dst")));
    const TransferResult result =
        transfer({m_designs->filePath(QStringLiteral("folder.dst"))}, drive.path());
    QCOMPARE(result.reason, TransferResult::SourceUnreadable);
    QVERIFY(drive.files().isEmpty());
}

void tst_transfer::noticesAPulledDrive()
{
    DriveFixture drive;
    if (!drive.isMounted())
        QSKIP("Nothing can be mounted here.");
    // The same design over and over, so that the copying goes on until the drive is gone.
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
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

void tst_transfer::leavesAnotherDriveInItsPlaceAlone()
{
    DriveFixture drive;
    if (!drive.isMounted())
        QSKIP("Nothing can be mounted here.");
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    const quint64 listed = drive.mount().device;
    QVERIFY(drive.pull());
    QCOMPARE(transfer({rose}, drive.path(), listed).reason, TransferResult::DriveGone);
    QVERIFY(drive.files().isEmpty());
}

void tst_transfer::leavesDesignsOnTheDriveAlone()
{
    DriveFixture drive;
    QFile design(drive.filePath(QStringLiteral("rose.dst")));
    QVERIFY(design.open(QIODevice::WriteOnly) && design.write("the only copy") > 0);
    design.close();
    QCOMPARE(transfer({design.fileName()}, drive.path()).copied, 1);
    QCOMPARE(contentOf(design.fileName()), QByteArray("the only copy"));
}

void tst_transfer::tellsHowFarItIs()
{
    DriveFixture drive;
    const QStringList sources{createDesign(QStringLiteral("a.dst"), QByteArray(300000, 'a')),
                              createDesign(QStringLiteral("b.dst"), QByteArray(5000, 'b'))};
    TransferJob job(sources, drive.path(), 0);
    QCOMPARE(job.progress().begun, 0);
    QSignalSpy finished(&job, &TransferJob::finished);
    job.start();
    QVERIFY(finished.wait());
    QCOMPARE(job.progress().begun, 2);
    QCOMPARE(job.progress().bytes, qint64(305000));
    QCOMPARE(job.progress().totalBytes, qint64(305000));
}

void tst_transfer::doesNotWaitForADriveThatHangs()
{
    DriveFixture drive;
    if (!drive.hang())
        QSKIP("No FAT image can be made to hang here.");
    const QString rose = createDesign(QStringLiteral("rose.dst"), "rose");
    {
        TransferJob job({rose}, drive.path(), drive.mount().device);
        job.start();
        QTRY_COMPARE(job.progress().begun, 1);
    }
    drive.resume();
}

QTEST_GUILESS_MAIN(tst_transfer)
#include "tst_transfer.moc"
