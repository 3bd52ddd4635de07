#include "CliProcess.h"
#include "FakeOrganiser.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include <memory>
#include <QDir>
#include <QLockFile>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#endif

class CliScanTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void bringsCatalogueIntoLine();
    void refusesWhatIsNoFolder();
    void leavesUnreadableCatalogueAlone();
    void refusesWhileOrganiserRuns();
    void runsAfterOrganiserWasKilled();
    void refusesWhileAnotherScanRuns();
    void savesNothingWhenOrganiserStartsMeanwhile();
    void windsDownOnInterrupt();
    void showsProgressOnTerminalOnly();

private:
    QByteArray catalogue() const
    {
        return CatalogueFolder::read(m_cli->dataPath("hoopline-organizer.xml"));
    }
    void makeDesigns(int count);
    int previewCount() const
    {
        return QDir(m_cli->dataPath("previews")).entryList({"*.png"}).size();
    }

    std::unique_ptr<CliProcess> m_cli;
};

void CliScanTest::init()
{
    m_cli = std::make_unique<CliProcess>();
    qputenv("TMPDIR", m_cli->temporaryPath().toLocal8Bit());
    QVERIFY(QDir(m_cli->workPath()).mkpath("designs"));
}

void CliScanTest::cleanup()
{
    m_cli.reset();
}

void CliScanTest::makeDesigns(int count)
{
    for (int i = 0; i < count; ++i) {
        DstDesign design(QByteArray::number(i));
        for (int k = 0; k < 200; ++k)
            design.stitch(k % 2 ? 100 : -100, i % 7 + 1);
        QVERIFY(design.writeTo(m_cli->workPath(QStringLiteral("designs/%1.dst").arg(i))));
    }
}

void CliScanTest::bringsCatalogueIntoLine()
{
    makeDesigns(3);
    QVERIFY(CatalogueFolder::write(m_cli->workPath("designs/bad.hus"), "junk"));
    auto result = m_cli->run({"scan", "designs/"});
    QCOMPARE(result.error, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, QByteArray("added 4, updated 0, moved 0, removed 0, unreadable 1\n"));
    QVERIFY(catalogue().contains("<string>" + m_cli->workPath("designs").toUtf8() + "</string>"));

    QVERIFY(QFile::remove(m_cli->workPath("designs/bad.hus")));
    QVERIFY(QFile::rename(m_cli->workPath("designs/0.dst"), m_cli->workPath("designs/new.dst")));
    QVERIFY(DstDesign::square().writeTo(m_cli->workPath("designs/1.dst")));
    result = m_cli->run({"scan"});
    QCOMPARE(result.lastLine(), QByteArray("added 0, updated 1, moved 1, removed 1, unreadable 0"));
    result = m_cli->run({"scan"});
    QCOMPARE(result.lastLine(), QByteArray("added 0, updated 0, moved 0, removed 0, unreadable 0"));
}

void CliScanTest::refusesWhatIsNoFolder()
{
    makeDesigns(1);
    const auto result = m_cli->run({"scan", "designs", "designs/0.dst"});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QByteArray());
    QVERIFY(result.error.contains("designs/0.dst"));
    QVERIFY(catalogue().isEmpty());
}

void CliScanTest::leavesUnreadableCatalogueAlone()
{
    makeDesigns(1);
    QVERIFY(QDir().mkpath(m_cli->dataPath()));
    QVERIFY(CatalogueFolder::write(m_cli->dataPath("hoopline-organizer.xml"), "<broken"));
    for (const QStringList &arguments : {QStringList{"scan", "designs"}, QStringList{"list"}}) {
        const auto result = m_cli->run(arguments);
        QCOMPARE(result.status, 1);
        QVERIFY(!result.error.isEmpty());
        QCOMPARE(catalogue(), QByteArray("<broken"));
    }
}

void CliScanTest::refusesWhileOrganiserRuns()
{
    makeDesigns(1);
    FakeOrganiser organiser;
    QVERIFY(organiser.start());
    const auto result = m_cli->run({"scan", "designs"});
    QCOMPARE(result.status, 3);
    QCOMPARE(result.out, QByteArray());
    QVERIFY(result.error.contains("Hoopline Organizer is running"));
    QVERIFY(catalogue().isEmpty());
    QCOMPARE(m_cli->run({"list"}).status, 0);
}

void CliScanTest::runsAfterOrganiserWasKilled()
{
    makeDesigns(1);
    FakeOrganiser organiser;
    QVERIFY(organiser.start());
    organiser.stopAnswering();
    QCOMPARE(m_cli->run({"scan", "designs"}).status, 0);
}

void CliScanTest::refusesWhileAnotherScanRuns()
{
    QVERIFY(QDir().mkpath(m_cli->dataPath()));
    QLockFile lock(m_cli->dataPath("hoopline-cli.lock"));
    QVERIFY(lock.tryLock());
    const auto result = m_cli->run({"scan"});
    QCOMPARE(result.status, 3);
    QVERIFY(result.error.contains("scan"));
}

void CliScanTest::savesNothingWhenOrganiserStartsMeanwhile()
{
#ifndef Q_OS_UNIX
    QSKIP("needs signals");
#else
    makeDesigns(400);
    QProcess process;
    QVERIFY(m_cli->start(process, {"scan", "designs"}));
    QTRY_VERIFY_WITH_TIMEOUT(previewCount() > 0, 60000);
    ::kill(pid_t(process.processId()), SIGSTOP);
    QVERIFY(previewCount() < 400);
    FakeOrganiser organiser;
    QVERIFY(organiser.start());
    const QByteArray before = catalogue();
    ::kill(pid_t(process.processId()), SIGCONT);
    const auto result = CliProcess::finish(process);
    QCOMPARE(result.status, 3);
    QVERIFY(result.error.contains("Nothing was saved"));
    QCOMPARE(catalogue(), before);
#endif
}

void CliScanTest::windsDownOnInterrupt()
{
#ifndef Q_OS_UNIX
    QSKIP("needs signals");
#else
    makeDesigns(400);
    QProcess process;
    QVERIFY(m_cli->start(process, {"scan", "designs"}));
    QTRY_VERIFY_WITH_TIMEOUT(previewCount() > 0, 60000);
    ::kill(pid_t(process.processId()), SIGINT);
    const auto result = CliProcess::finish(process);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.lastLine(),
             QByteArray("added 400, updated 0, moved 0, removed 0, unreadable 0"));
    const int painted = previewCount();
    QVERIFY(painted < 400);
    QCOMPARE(m_cli->run({"scan"}).lastLine(), "added 0, updated " +
                                                  QByteArray::number(400 - painted) +
                                                  ", moved 0, removed 0, unreadable 0");
#endif
}

void CliScanTest::showsProgressOnTerminalOnly()
{
#ifndef Q_OS_UNIX
    QSKIP("needs a pseudo-terminal");
#else
    makeDesigns(20);
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (terminal < 0 || grantpt(terminal) != 0 || unlockpt(terminal) != 0)
        QSKIP("there are no pseudo-terminals here");
    QProcess process;
    process.setStandardErrorFile(QString::fromLocal8Bit(ptsname(terminal)));
    QVERIFY(m_cli->start(process, {"scan", "designs"}));
    const auto result = CliProcess::finish(process);
    char shown[4096];
    const ssize_t count = ::read(terminal, shown, sizeof shown);
    ::close(terminal);
    QCOMPARE(result.status, 0);
    QVERIFY(count > 0);
    const QByteArray text(shown, int(count));
    QVERIFY2(text.contains('[') && text.contains('%'), text);
    QVERIFY2(text.endsWith("\r\033[K"), text);
    QCOMPARE(result.out.count('\n'), 1);
#endif
}

QTEST_GUILESS_MAIN(CliScanTest)
#include "tst_cli_scan.moc"
