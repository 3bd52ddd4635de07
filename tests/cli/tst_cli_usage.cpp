#include "CliProcess.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <QtTest>

class CliUsageTest : public QObject
{
    Q_OBJECT

private slots:
    void answersHelp_data()
    {
        const Rows<QStringList> row("arguments");
        for (const char *line :
             {"--help", "-h", "help", "help list", "scan --help", "inspect --help", "list --help",
              "backup --help", "restore --help", "inspect a.dst --json --help"})
            row(line, QString(line).split(' '));
    }

    void answersHelp()
    {
        QFETCH(QStringList, arguments);
        const auto result = CliProcess().run(arguments);
        QCOMPARE(result.status, 0);
        QVERIFY2(result.out.startsWith("Usage: hoopline-cli "), result.out);
        QCOMPARE(result.error, QByteArray());
    }

    void refusesWrongUsage_data()
    {
        const Rows<QStringList> row("arguments");
        const QString lines =
            "sing | help sing | --json | scan --csv | inspect --loud a.dst | list -x | "
            "inspect | inspect --render o.png a.dst b.dst | inspect a.dst --render | "
            "inspect --size big a.dst | inspect --size 0 a.dst | "
            "inspect --size 99999 a.dst | inspect --size 4 --size=5 a.dst | "
            "list --type png | list a.dst | list --json --csv | list --max-size 100 | "
            "list --max-size -1x5 | list --search tag: | list --sort beauty | backup a b | "
            "restore | restore a b | list --count -0 | list --format {nmae} | "
            "list --format {name | list --catalogue . | inspect --json --render - a | "
            "tag | tag add x | favorite - a.dst | favorite a.dst --search x | "
            "favorite -0 a.dst | note | note --append --replace x a.dst | import | "
            "import a b | export a b | thumbnails | folders remove | completions csh";
        for (const QString &line : lines.split(" | "))
            row(qPrintable(line), line.split(' '));
        row("nothing", {});
        row("list --search rose fits:1x", {"list", "--search", "rose fits:1x"});
        row("list --folder ", {"list", "--folder", ""});
    }

    void refusesWrongUsage()
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

    void suggestsWhatWasMeant_data()
    {
        const Rows<QStringList, QByteArray> row("arguments", "meant");
        row("swapped", {"lsit"}, "'list'");
        row("left out", {"favrite"}, "'favorite'");
        row("help for it", {"help", "Scna"}, "'scan'");
        row("option", {"list", "--serch=x"}, "'search'");
        row("common option", {"list", "--hlep"}, "'help'");
        row("field", {"list", "--format", "{stich_count}"}, "'stitch_count'");
        row("nothing like it", {"dance"}, {});
    }

    void suggestsWhatWasMeant()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, meant);
        const auto result = CliProcess().run(arguments);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.error.contains("Did you mean"), !meant.isEmpty());
        QVERIFY2(result.error.contains("Did you mean " + meant) || meant.isEmpty(), result.error);
    }

    void tellsItsVersion()
    {
        for (const QStringList &arguments : {QStringList{"--version"}, QStringList{"scan", "-V"}}) {
            const auto result = CliProcess().run(arguments);
            QCOMPARE(result.status, 0);
            QVERIFY(result.out.startsWith("hoopline-cli 1."));
        }
    }

    void failsWhenOutputIsLost_data()
    {
        const Rows<QStringList> row("arguments");
        row("help", {"--help"});
        row("inspect", {"inspect", "--json", "a.dst"});
        row("list", {"list", "--csv"});
    }

    void failsWhenOutputIsLost()
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
    void manualPageTellsAllOptions()
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

    void shellsCanReadTheirCompletions_data()
    {
        const Rows<QString> row("shell");
        for (const char *shell : {"bash", "zsh", "fish"})
            row(shell, QString(shell));
    }

    void shellsCanReadTheirCompletions()
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

    void bashCompletes_data()
    {
        const Rows<QString, QByteArray> row("words", "completions");
        row("command", "th", "thumbnails");
        row("of help", "help fo", "folders");
        row("option", "list --fo", "--folder --format");
        row("common option", "scan --cat", "--catalogue");
        row("verb", "tag r", "remove");
        row("file", "inspect some", "some design.dst");
        row("value", "inspect --render some", "some design.dst");
    }

    void bashCompletes()
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

    void hasNoWayToTheNetwork()
    {
        QFile program(CLI_PATH);
        QVERIFY(program.open(QIODevice::ReadOnly));
        const QByteArray bytes = program.readAll();
        QVERIFY(bytes.contains("Core.so"));
        QVERIFY(!bytes.contains("Network.so"));
    }

    void speaksTheLanguageOfTheSystem()
    {
        qputenv("LC_ALL", "de_DE.UTF-8");
        const auto result = CliProcess().run({"sing"});
        qputenv("LC_ALL", "C.UTF-8");
        QCOMPARE(result.error, "hoopline-cli: Unbekannter Befehl \342\200\236sing\342\200\234."
                               "\nAufruf: hoopline-cli COMMAND [options] [ARGUMENT...]\n");
    }
};

QTEST_GUILESS_MAIN(CliUsageTest)
#include "tst_cli_usage.moc"
