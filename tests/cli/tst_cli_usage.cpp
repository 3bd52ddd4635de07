#include "CliProcess.h"
#include "support/DstDesign.h"
#include <QtTest>

class CliUsageTest : public QObject
{
    Q_OBJECT

private slots:
    void answersHelp_data();
    void answersHelp();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void tellsItsVersion();
    void failsWhenOutputIsLost_data();
    void failsWhenOutputIsLost();
    void speaksTheLanguageOfTheSystem();
};

void CliUsageTest::answersHelp_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("program") << QStringList{"--help"};
    QTest::newRow("short") << QStringList{"-h"};
    QTest::newRow("scan") << QStringList{"scan", "--help"};
    QTest::newRow("inspect") << QStringList{"inspect", "--help"};
    QTest::newRow("list") << QStringList{"list", "--help"};
    QTest::newRow("behind other arguments") << QStringList{"inspect", "a.dst", "--json", "--help"};
}

void CliUsageTest::answersHelp()
{
    QFETCH(QStringList, arguments);
    const auto result = CliProcess().run(arguments);
    QCOMPARE(result.status, 0);
    QVERIFY2(result.out.startsWith("Usage: hoopline-cli "), result.out);
    QCOMPARE(result.error, QByteArray());
}

void CliUsageTest::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("nothing") << QStringList{};
    QTest::newRow("unknown command") << QStringList{"sing"};
    QTest::newRow("unknown option") << QStringList{"--json"};
    QTest::newRow("unknown to scan") << QStringList{"scan", "--json"};
    QTest::newRow("unknown to inspect") << QStringList{"inspect", "--loud", "a.dst"};
    QTest::newRow("unknown short") << QStringList{"list", "-x"};
    QTest::newRow("inspect nothing") << QStringList{"inspect"};
    QTest::newRow("render two") << QStringList{"inspect", "--render", "o.png", "a.dst", "b.dst"};
    QTest::newRow("render to nothing") << QStringList{"inspect", "a.dst", "--render"};
    QTest::newRow("size of no number") << QStringList{"inspect", "--size", "big", "a.dst"};
    QTest::newRow("size of zero") << QStringList{"inspect", "--size", "0", "a.dst"};
    QTest::newRow("size beyond measure") << QStringList{"inspect", "--size", "99999", "a.dst"};
    QTest::newRow("list a file") << QStringList{"list", "a.dst"};
    QTest::newRow("two forms") << QStringList{"list", "--json", "--csv"};
    QTest::newRow("bad size") << QStringList{"list", "--max-size", "100"};
    QTest::newRow("negative size") << QStringList{"list", "--max-size", "-1x5"};
    QTest::newRow("empty folder") << QStringList{"list", "--folder", ""};
}

void CliUsageTest::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    const auto result = CliProcess().run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.out, QByteArray());
    const auto lines = result.error.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith("hoopline-cli: "), result.error);
    QVERIFY2(lines.at(1).startsWith("Usage: hoopline-cli "), result.error);
}

void CliUsageTest::tellsItsVersion()
{
    const auto result = CliProcess().run({"--version"});
    QCOMPARE(result.status, 0);
    QVERIFY(result.out.startsWith("hoopline-cli 1."));
}

void CliUsageTest::failsWhenOutputIsLost_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("inspect") << QStringList{"inspect", "--json", "a.dst"};
    QTest::newRow("list") << QStringList{"list"};
}

void CliUsageTest::failsWhenOutputIsLost()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("there is no device that is always full here");
    QFETCH(QStringList, arguments);
    const CliProcess cli;
    QVERIFY(DstDesign::square().writeTo(cli.workPath("a.dst")));
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    QVERIFY(cli.start(process, arguments));
    QCOMPARE(CliProcess::finish(process).status, 1);
}

void CliUsageTest::speaksTheLanguageOfTheSystem()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    const auto result = CliProcess().run({"sing"});
    qputenv("LC_ALL", "C.UTF-8");
    QCOMPARE(result.error,
             QByteArray("hoopline-cli: Unbekannter Befehl \342\200\236sing\342\200\234."
                        "\nAufruf: hoopline-cli scan|inspect|list [options] "
                        "[ARGUMENT...]\n"));
}

QTEST_GUILESS_MAIN(CliUsageTest)
#include "tst_cli_usage.moc"
