#include "base/GDebug.h"
#include "base/GSettings.h"
#include "online/BreakpadCrashHandler.h"
#include "online/GCrashLogCollector.h"
#include "support/Rows.h"

#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <QtTest>
#include <stdexcept>

volatile int sink = 0;
volatile int Endless = INT_MAX;

// NOLINTNEXTLINE(misc-no-recursion): running out of stack is what it is for
static int overflow(int depth)
{
    volatile char frame[4096];
    frame[0] = char(depth);
    return depth < Endless ? overflow(depth + 1) + frame[0] : 0;
}

[[noreturn]] static void crash(const QByteArray &how)
{
    BreakpadCrashHandler::install();
    theLogServer()->logMessage("Test", LogLevel::Warning, "the last words");
    theLogServer()->logMessage("Test", LogLevel::Warning, "reading /home/jo/secret rose.dst");
    if (how == "segv") {
        // Not null, which a sanitizer would catch before the processor does.
        volatile std::uintptr_t nowhere = 64;
        sink = *reinterpret_cast<volatile int *>(nowhere);
    } else if (how == "overflow") {
        sink = overflow(0);
    } else if (how == "throw") {
        throw std::runtime_error("nobody catches this");
    } else if (how == "trap") {
        __builtin_trap();
    }
    std::raise(SIGSEGV);
    std::exit(0);
}

static void setNames()
{
    QCoreApplication::setApplicationName("Crash Test");
    QCoreApplication::setApplicationVersion("9.8.7");
}

/** Real processes that really crash, and what the next start finds. */
class tst_Crash : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("TMPDIR", QFile::encodeName(m_dir.path()));
        GSettings::setIniFile(m_dir.filePath("s.ini"));
    }

    void init()
    {
        QDir(BreakpadCrashHandler::crashLogPath()).removeRecursively();
        GSettings().flushSettings({});
    }

    void logIsWritten_data()
    {
        const Rows<int, QString> row("signal", "name");
        row("segv", SIGSEGV, "SIGSEGV");
        row("raised", SIGSEGV, "SIGSEGV");
        row("overflow", SIGSEGV, "SIGSEGV");
        row("throw", SIGABRT, "SIGABRT");
        row("trap", SIGILL, "SIGILL");
    }

    void logIsWritten()
    {
        QFETCH(QString, name);
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        QTEST(exitSignal(QTest::currentDataTag()), "signal");
        const QStringList logs = GCrashLogCollector().logsSince(before);
        QCOMPARE(logs.size(), 1);
        const QString log = logs.first();
        for (const QString &part : QStringList{"Signal: " + name, "Version: 9.8.7\n",
                                               "Build date: 20", "System: Linux", "the last words"})
            QVERIFY2(log.contains(part), qPrintable(log));
        QVERIFY(!log.contains("rose"));
        // Frames of the program itself, to be resolved by their offset in it.
        QVERIFY(log.contains(QRegularExpression("\ntst_crash\\(.*\\+0x[0-9a-f]+\\)")));
        QVERIFY(!log.contains(QCoreApplication::applicationDirPath()));
    }

    void anotherUsersFolderIsNotUsed()
    {
        const QString path = BreakpadCrashHandler::crashLogPath();
        QVERIFY(QDir().mkpath(path));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                        QFile::WriteOther | QFile::ExeOther | QFile::ReadOther);
        QCOMPARE(exitSignal("segv"), SIGSEGV);
        QVERIFY(QDir(path).isEmpty());
        QVERIFY(QDir().rmdir(path));
        const QString elsewhere = m_dir.filePath("elsewhere");
        QVERIFY(QDir().mkpath(elsewhere));
        QVERIFY(QFile::link(elsewhere, path));
        QCOMPARE(exitSignal("segv"), SIGSEGV);
        QVERIFY(QDir(elsewhere).isEmpty());
        QVERIFY(QFile::remove(path));
    }

    void onlyNewLogsAreOffered()
    {
        const QDateTime now = QDateTime::currentDateTime();
        QCOMPARE(exitSignal("raised"), SIGSEGV);
        writeLog("Crash Test-old.crash", "old", now.addSecs(-3600));
        writeLog("Other-new.crash", "other", now.addSecs(60));
        writeLog("Crash Test-new.txt", "text", now.addSecs(60));
        // On a fresh store the last check is now.
        QVERIFY(GCrashLogCollector().logsSinceLastCheck().isEmpty());
        QVERIFY(qAbs(GSettings().crashLoggerLastCheck().secsTo(now)) < 60);
        GSettings().setCrashLoggerLastCheck(now.addSecs(-5));
        QCOMPARE(GCrashLogCollector().logsSinceLastCheck().size(), 1);
        QVERIFY(GCrashLogCollector().logsSinceLastCheck().isEmpty());
    }

    void foldersAreLeftOut()
    {
        QCOMPARE(exitSignal("raised"), SIGSEGV);
        const QDateTime later = QDateTime::currentDateTime().addSecs(60);
        writeLog("Crash Test-x.crash",
                 "/home/jo smith/bin/prog(main+0x1)[0x2]\n/usr/libc.so.6(+0x3)[0x4]\n"
                 "bin/prog(+0x5) [0x6]\n1/2\n",
                 later);
        QCOMPARE(GCrashLogCollector().logsSince(later.addSecs(-1)),
                 QStringList("prog(main+0x1)[0x2]\nlibc.so.6(+0x3)[0x4]\nprog(+0x5) [0x6]\n1/2\n"));
    }

private:
    int exitSignal(const QByteArray &how) const
    {
        QProcess process;
        // A sanitizer's own handler would turn the signal into an exit status.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ASAN_OPTIONS", "handle_segv=0");
        process.setProcessEnvironment(environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QCoreApplication::applicationFilePath(),
                      {"--crash", QString::fromLatin1(how)});
        process.waitForFinished();
        return process.exitStatus() == QProcess::CrashExit ? process.exitCode() : 0;
    }

    static void writeLog(const QString &name, const QByteArray &text, const QDateTime &time)
    {
        QFile file(BreakpadCrashHandler::crashLogPath() + QLatin1Char('/') + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.flush();
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    QTemporaryDir m_dir;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    setNames();
    if (argc == 3 && qstrcmp(argv[1], "--crash") == 0)
        crash(argv[2]);
    tst_Crash test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_crash.moc"
