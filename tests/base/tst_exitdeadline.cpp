#include "base/ExitDeadline.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr int ExitCode = 7;

// Stands for what keeps the application from going.
int hang()
{
    ExitDeadline::start(100ms, ExitCode);
    std::this_thread::sleep_for(1h);
    return 0;
}

int leave()
{
    ExitDeadline::start(1h, ExitCode);
    return 3;
}

} // namespace

/** Processes that hang at their end, and such that do not. */
class tst_ExitDeadline : public QObject
{
    Q_OBJECT

private slots:
    void endsTheProcess_data();
    void endsTheProcess();
};

void tst_ExitDeadline::endsTheProcess_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("hangs") << "hang" << ExitCode;
    QTest::newRow("leaves by itself") << "leave" << 3;
}

void tst_ExitDeadline::endsTheProcess()
{
    QFETCH(QString, how);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child"), how});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QTEST(process.exitCode(), "exitCode");
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--child") == 0)
        return qstrcmp(argv[2], "hang") == 0 ? hang() : leave();
    tst_ExitDeadline test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_exitdeadline.moc"
