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
    void suggestsWhatWasMeant_data();
    void suggestsWhatWasMeant();
    void tellsItsVersion();
    void failsWhenOutputIsLost_data();
    void failsWhenOutputIsLost();
    void manualPageTellsAllOptions();
    void shellsCanReadTheirCompletions_data();
    void shellsCanReadTheirCompletions();
    void bashCompletes_data();
    void bashCompletes();
    void hasNoWayToTheNetwork();
    void speaksTheLanguageOfTheSystem();
};

void CliUsageTest::answersHelp_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("program") << QStringList{"--help"};
    QTest::newRow("short") << QStringList{"-h"};
    QTest::newRow("word") << QStringList{"help"};
    QTest::newRow("word for a command") << QStringList{"help", "list"};
    QTest::newRow("scan") << QStringList{"scan", "--help"};
    QTest::newRow("inspect") << QStringList{"inspect", "--help"};
    QTest::newRow("list") << QStringList{"list", "--help"};
    QTest::newRow("backup") << QStringList{"backup", "--help"};
    QTest::newRow("restore") << QStringList{"restore", "--help"};
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
    QTest::newRow("help for nothing known") << QStringList{"help", "sing"};
    QTest::newRow("unknown option") << QStringList{"--json"};
    QTest::newRow("unknown to scan") << QStringList{"scan", "--csv"};
    QTest::newRow("unknown to inspect") << QStringList{"inspect", "--loud", "a.dst"};
    QTest::newRow("unknown short") << QStringList{"list", "-x"};
    QTest::newRow("inspect nothing") << QStringList{"inspect"};
    QTest::newRow("render two") << QStringList{"inspect", "--render", "o.png", "a.dst", "b.dst"};
    QTest::newRow("render to nothing") << QStringList{"inspect", "a.dst", "--render"};
    QTest::newRow("size of no number") << QStringList{"inspect", "--size", "big", "a.dst"};
    QTest::newRow("size of zero") << QStringList{"inspect", "--size", "0", "a.dst"};
    QTest::newRow("size beyond measure") << QStringList{"inspect", "--size", "99999", "a.dst"};
    QTest::newRow("repeated value") << QStringList{"inspect", "--size", "4", "--size=5", "a.dst"};
    QTest::newRow("unknown type") << QStringList{"list", "--type", "png"};
    QTest::newRow("list a file") << QStringList{"list", "a.dst"};
    QTest::newRow("two forms") << QStringList{"list", "--json", "--csv"};
    QTest::newRow("bad size") << QStringList{"list", "--max-size", "100"};
    QTest::newRow("negative size") << QStringList{"list", "--max-size", "-1x5"};
    QTest::newRow("mistake in the search") << QStringList{"list", "--search", "rose fits:1x"};
    QTest::newRow("unfinished search") << QStringList{"list", "--search", "tag:"};
    QTest::newRow("unknown order") << QStringList{"list", "--sort", "beauty"};
    QTest::newRow("two backups") << QStringList{"backup", "a", "b"};
    QTest::newRow("restore nothing") << QStringList{"restore"};
    QTest::newRow("restore two") << QStringList{"restore", "a", "b"};
    QTest::newRow("empty folder") << QStringList{"list", "--folder", ""};
    QTest::newRow("count and files") << QStringList{"list", "--count", "-0"};
    QTest::newRow("unknown field") << QStringList{"list", "--format", "{nmae}"};
    QTest::newRow("open field") << QStringList{"list", "--format", "{name"};
    QTest::newRow("catalogue that is a folder") << QStringList{"list", "--catalogue", "."};
    QTest::newRow("picture among JSON") << QStringList{"inspect", "--json", "--render", "-", "a"};
    QTest::newRow("tag what") << QStringList{"tag"};
    QTest::newRow("nothing to tag") << QStringList{"tag", "add", "x"};
    QTest::newRow("dash among names") << QStringList{"favorite", "-", "a.dst"};
    QTest::newRow("names and a search") << QStringList{"favorite", "a.dst", "--search", "x"};
    QTest::newRow("NUL without input") << QStringList{"favorite", "-0", "a.dst"};
    QTest::newRow("note nothing") << QStringList{"note"};
    QTest::newRow("note both ways") << QStringList{"note", "--append", "--replace", "x", "a.dst"};
    QTest::newRow("import nothing") << QStringList{"import"};
    QTest::newRow("import two") << QStringList{"import", "a", "b"};
    QTest::newRow("export two") << QStringList{"export", "a", "b"};
    QTest::newRow("thumbnails nowhere") << QStringList{"thumbnails"};
    QTest::newRow("remove no folder") << QStringList{"folders", "remove"};
    QTest::newRow("unknown shell") << QStringList{"completions", "csh"};
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

void CliUsageTest::suggestsWhatWasMeant_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("meant");
    QTest::newRow("swapped") << QStringList{"lsit"} << QByteArray("'list'");
    QTest::newRow("left out") << QStringList{"favrite"} << QByteArray("'favorite'");
    QTest::newRow("help for it") << QStringList{"help", "Scna"} << QByteArray("'scan'");
    QTest::newRow("option") << QStringList{"list", "--serch=x"} << QByteArray("'search'");
    QTest::newRow("common option") << QStringList{"list", "--hlep"} << QByteArray("'help'");
    QTest::newRow("field") << QStringList{"list", "--format", "{stich_count}"}
                           << QByteArray("'stitch_count'");
    QTest::newRow("nothing like it") << QStringList{"dance"} << QByteArray();
}

void CliUsageTest::suggestsWhatWasMeant()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, meant);
    const auto result = CliProcess().run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.error.contains("Did you mean"), !meant.isEmpty());
    QVERIFY2(result.error.contains("Did you mean " + meant) || meant.isEmpty(), result.error);
}

void CliUsageTest::tellsItsVersion()
{
    for (const QStringList &arguments : {QStringList{"--version"}, QStringList{"scan", "-V"}}) {
        const auto result = CliProcess().run(arguments);
        QCOMPARE(result.status, 0);
        QVERIFY(result.out.startsWith("hoopline-cli 1."));
    }
}

void CliUsageTest::failsWhenOutputIsLost_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("inspect") << QStringList{"inspect", "--json", "a.dst"};
    QTest::newRow("list") << QStringList{"list", "--csv"};
}

void CliUsageTest::failsWhenOutputIsLost()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("there is no device that is always full here");
    QFETCH(QStringList, arguments);
    const CliProcess cli;
    QVERIFY(DstDesign::square().writeTo(cli.workPath("a.dst")));
    QCOMPARE(cli.run({"scan"}).status, 0);
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    QVERIFY(cli.start(process, arguments));
    const auto result = CliProcess::finish(process);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.error.count('\n'), 1);
    QVERIFY2(result.error.contains("No space left on device"), result.error);
}

// What help tells, the manual page tells, and nothing besides.
void CliUsageTest::manualPageTellsAllOptions()
{
    QFile page(MANUAL_PAGE);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).replace("\\-", "-");
    const QRegularExpression command("^  ([a-z]+)  ", QRegularExpression::MultilineOption);
    const QRegularExpression option("--[a-z][a-z-]+");
    const CliProcess cli;
    QSet<QString> told{"--help", "--version"};
    auto commands = command.globalMatch(QString::fromUtf8(cli.run({"--help"}).out));
    QVERIFY(commands.hasNext());
    while (commands.hasNext()) {
        const QString name = commands.next().captured(1);
        QVERIFY2(manual.contains("\n.SS " + name + '\n'), qPrintable(name));
        auto options = option.globalMatch(QString::fromUtf8(cli.run({"help", name}).out));
        while (options.hasNext())
            told.insert(options.next().captured());
    }
    QSet<QString> written;
    auto options = option.globalMatch(manual);
    while (options.hasNext())
        written.insert(options.next().captured());
    QCOMPARE(written, told);
}

void CliUsageTest::shellsCanReadTheirCompletions_data()
{
    QTest::addColumn<QString>("shell");
    for (const char *shell : {"bash", "zsh", "fish"})
        QTest::newRow(shell) << QString(shell);
}

void CliUsageTest::shellsCanReadTheirCompletions()
{
    QFETCH(QString, shell);
    const auto result = CliProcess().run({"completions", shell});
    QCOMPARE(result.status, 0);
    QVERIFY(result.out.contains("dry-run"));
    if (QStandardPaths::findExecutable(shell).isEmpty())
        QSKIP("the shell is not installed");
    QProcess process;
    process.start(shell, {"-n"});
    process.write(result.out);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void CliUsageTest::bashCompletes_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("completions");
    QTest::newRow("command") << "th" << QByteArray("thumbnails");
    QTest::newRow("of help") << "help fo" << QByteArray("folders");
    QTest::newRow("option") << "list --fo" << QByteArray("--folder --format");
    QTest::newRow("common option") << "scan --cat" << QByteArray("--catalogue");
    QTest::newRow("verb") << "tag r" << QByteArray("remove");
    QTest::newRow("file") << "inspect some" << QByteArray("some design.dst");
    QTest::newRow("value") << "inspect --render some" << QByteArray("some design.dst");
}

void CliUsageTest::bashCompletes()
{
    QFETCH(QString, words);
    if (QStandardPaths::findExecutable("bash").isEmpty())
        QSKIP("the shell is not installed");
    const CliProcess cli;
    QFile file(cli.workPath("some design.dst"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString script = QString::fromUtf8(cli.run({"completions", "bash"}).out) +
                           QStringLiteral("COMP_WORDS=(hoopline-cli %1)\n"
                                          "COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                                          "_hoopline_cli; echo \"${COMPREPLY[*]}\"\n")
                               .arg(words);
    QProcess process;
    process.setWorkingDirectory(cli.workPath());
    process.start("bash", {"--norc", "-c", script});
    QVERIFY(process.waitForFinished());
    QTEST(process.readAllStandardOutput().trimmed(), "completions");
}

void CliUsageTest::hasNoWayToTheNetwork()
{
    QFile program(CLI_PATH);
    QVERIFY(program.open(QIODevice::ReadOnly));
    const QByteArray bytes = program.readAll();
    QVERIFY(bytes.contains("libQt5Core.so"));
    QVERIFY(!bytes.contains("libQt5Network.so"));
}

void CliUsageTest::speaksTheLanguageOfTheSystem()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    const auto result = CliProcess().run({"sing"});
    qputenv("LC_ALL", "C.UTF-8");
    QCOMPARE(result.error,
             QByteArray("hoopline-cli: Unbekannter Befehl \342\200\236sing\342\200\234."
                        "\nAufruf: hoopline-cli COMMAND [options] [ARGUMENT...]\n"));
}

QTEST_GUILESS_MAIN(CliUsageTest)
#include "tst_cli_usage.moc"
