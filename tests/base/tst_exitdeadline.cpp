#include "base/ExitDeadline.h"
#include "support/Rows.h"

#include <QtTest>
#include <thread>

using namespace std::chrono_literals;

constexpr int ExitCode = 7;

// Stands for what keeps the application from going.
static int hang()
{
    ExitDeadline::start(100ms, ExitCode);
    std::this_thread::sleep_for(1h);
    return 0;
}

static int leave()
{
    ExitDeadline::start(1h, ExitCode);
    return 3;
}

/** Processes that hang at their end, and such that do not. */
class tst_ExitDeadline : public QObject
{
    Q_OBJECT

private slots:
    void endsTheProcess_data()
    {
        const Rows<QString, int> row("how", "exitCode");
        row("hangs", "hang", ExitCode);
        row("leaves by itself", "leave", 3);
    }

    void endsTheProcess()
    {
        QFETCH(QString, how);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--child", how});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QTEST(process.exitCode(), "exitCode");
    }
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--child") == 0)
        return qstrcmp(argv[2], "hang") == 0 ? hang() : leave();
    tst_ExitDeadline test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_exitdeadline.moc"
