#include "base/files/FileLock.h"
#include "CliProcess.h"
#include "FakeOrganiser.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include "support/Terminal.h"
#include <memory>
#include <QtTest>

#include <csignal>

/** Designs: more than a scan reads until it was told to stop. */
constexpr int Many = 500;

class CliScanTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_cli = std::make_unique<CliProcess>();
        qputenv("TMPDIR", m_cli->temporaryPath().toLocal8Bit());
        QVERIFY(QDir(m_cli->workPath()).mkpath("designs"));
    }

    void cleanup() { m_cli.reset(); }

    void bringsCatalogueIntoLine()
    {
        makeDesigns(3);
        QVERIFY(CatalogueFolder::write(m_cli->workPath("designs/bad.hus"), "junk"));
        auto result = m_cli->run({"scan", "designs/"});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.error.count('\n'), 1);
        QVERIFY2(result.error.contains("designs/bad.hus: "), result.error);
        QCOMPARE(result.out, "added 4, updated 0, moved 0, removed 0, unreadable 1\n");
        QVERIFY(
            catalogue().contains("<string>" + m_cli->workPath("designs").toUtf8() + "</string>"));

        QVERIFY(QFile::remove(m_cli->workPath("designs/bad.hus")));
        QVERIFY(
            QFile::rename(m_cli->workPath("designs/0.dst"), m_cli->workPath("designs/new.dst")));
        QVERIFY(DstDesign::square().writeTo(m_cli->workPath("designs/1.dst")));
        result = m_cli->run({"scan"});
        QCOMPARE(result.lastLine(), "added 0, updated 1, moved 1, removed 1, unreadable 0");
        result = m_cli->run({"scan"});
        QCOMPARE(result.lastLine(), "added 0, updated 0, moved 0, removed 0, unreadable 0");
    }

    void refusesWhatIsNoFolder()
    {
        makeDesigns(1);
        const auto result = m_cli->run({"scan", "designs", "designs/0.dst"});
        QCOMPARE(result.status, 1);
        QCOMPARE(result.out, QByteArray());
        QVERIFY(result.error.contains("designs/0.dst"));
        QVERIFY(catalogue().isEmpty());
    }

    void leavesUnreadableCatalogueAlone()
    {
        makeDesigns(1);
        QVERIFY(QDir().mkpath(m_cli->dataPath()));
        QVERIFY(CatalogueFolder::write(m_cli->dataPath("hoopline-organizer.xml"), "<broken"));
        for (const QStringList &arguments : {QStringList{"scan", "designs"}, QStringList{"list"}}) {
            const auto result = m_cli->run(arguments);
            QCOMPARE(result.status, 1);
            QVERIFY(!result.error.isEmpty());
            QCOMPARE(catalogue(), "<broken");
        }
    }

    void refusesWhileOrganiserRuns()
    {
        makeDesigns(1);
        FakeOrganiser organiser;
        QVERIFY(organiser.start());
        const auto result = m_cli->run({"scan", "designs"});
        QCOMPARE(result.status, 3);
        QCOMPARE(result.out, QByteArray());
        QVERIFY(result.error.contains("Hoopline Organizer is running"));
        QVERIFY(catalogue().isEmpty());
        organiser.stopAnswering(); // as after a kill
        QCOMPARE(m_cli->run({"scan", "designs"}).status, 0);
        QCOMPARE(m_cli->run({"list"}).status, 0);
    }

    void oldLockFilesBlockNobody_data()
    {
        const Rows<QByteArray> row("content");
        row("empty", {});
        row("of a process that lives",
            QByteArray::number(QCoreApplication::applicationPid()) + "\nhoopline-cli\nhere\n");
        row("of another machine", "1\nhoopline-cli\nlong-gone-machine\n");
    }

    void oldLockFilesBlockNobody()
    {
        QFETCH(QByteArray, content);
        QVERIFY(QDir().mkpath(m_cli->dataPath()));
        for (const char *name : {"hoopline-cli.lock", "hoopline-organizer.lock"})
            QVERIFY(CatalogueFolder::write(m_cli->dataPath(name), content));
        QCOMPARE(m_cli->run({"scan"}).status, 0);
        QVERIFY(!QFile::exists(m_cli->dataPath("hoopline-cli.lock")));
    }

    void refusesWhileAFolderIsMissing_data()
    {
        const Rows<QString, QString, int> row("lost", "instead", "designs");
        row("not plugged in", "designs", "", 4);
        row("suddenly empty", "designs", "designs/not/a/design", 4);
        row("not to be listed further down", "designs/sub", "loop", 1);
    }

    void refusesWhileAFolderIsMissing()
    {
        QFETCH(QString, lost);
        QFETCH(QString, instead);
        QFETCH(int, designs);
        makeDesigns(3);
        QVERIFY(QDir(m_cli->workPath()).mkpath("designs/sub"));
        QVERIFY(DstDesign::square().writeTo(m_cli->workPath("designs/sub/s.dst")));
        QVERIFY(QDir(m_cli->workPath()).mkpath("more"));
        QCOMPARE(m_cli->run({"scan", "designs", "more"}).status, 0);
        const QByteArray before = catalogue();
        QVERIFY(QFile::rename(m_cli->workPath(lost), m_cli->workPath("away")));
        if (instead == "loop")
            QVERIFY(QFile::link(m_cli->workPath(lost), m_cli->workPath(lost)));
        else if (!instead.isEmpty())
            QVERIFY(QDir(m_cli->workPath()).mkpath(instead));
        for (const QStringList &arguments :
             {QStringList{"scan"}, QStringList{"scan", "--dry-run"}, QStringList{"scan", "more"}}) {
            const auto result = m_cli->run(arguments);
            QCOMPARE(result.status, 4);
            QCOMPARE(result.out, QByteArray());
            QVERIFY2(result.error.contains(m_cli->workPath(lost).toUtf8() + ": "), result.error);
            QCOMPARE(catalogue(), before);
        }
        const auto rehearsal = m_cli->run({"scan", "--prune", "--dry-run"});
        QCOMPARE(rehearsal.lastLine(), "would add 0, update 0, move 0, remove " +
                                           QByteArray::number(designs) + ", unreadable 0");
        QCOMPARE(m_cli->run({"scan", "--prune"}).lastLine(),
                 "added 0, updated 0, moved 0, removed " + QByteArray::number(designs) +
                     ", unreadable 0");
    }

    void rehearsesWhatItDoes()
    {
        makeDesigns(5);
        QCOMPARE(m_cli->run({"scan", "designs"}).status, 0);
        const QByteArray before = catalogue();
        QVERIFY(QFile::rename(m_cli->workPath("designs/0.dst"), m_cli->workPath("designs/m.dst")));
        QVERIFY(DstDesign::square().writeTo(m_cli->workPath("designs/1.dst")));
        QVERIFY(QFile::remove(m_cli->workPath("designs/2.dst")));
        QVERIFY(QDir(m_cli->workPath()).mkpath("more"));
        QVERIFY(DstDesign::square("New").writeTo(m_cli->workPath("more/NEW.DST")));
        const auto rehearsal = m_cli->run({"scan", "--dry-run", "more"});
        QCOMPARE(rehearsal.status, 0);
        const QByteArray work = m_cli->workPath().toUtf8();
        QCOMPARE(rehearsal.out, "update " + work + "/designs/1.dst\nmove " + work +
                                    "/designs/0.dst -> " + work + "/designs/m.dst\nadd " + work +
                                    "/more/NEW.DST\nremove " + work +
                                    "/designs/2.dst\n"
                                    "would add 1, update 1, move 1, remove 1, unreadable 0\n");
        QCOMPARE(catalogue(), before);
        QCOMPARE(m_cli->run({"scan", "more"}).lastLine(),
                 "added 1, updated 1, moved 1, removed 1, unreadable 0");
    }

    void tellsPrograms()
    {
        makeDesigns(1);
        QVERIFY(CatalogueFolder::write(m_cli->workPath("designs/bad.hus"), "junk"));
        const auto plan = m_cli->run({"scan", "--json", "--dry-run", "designs"});
        const QByteArrayList planned = plan.out.trimmed().split('\n');
        QCOMPARE(planned.size(), 3);
        QVERIFY2(plan.out.contains("{\"action\": \"add\", \"file\": \"" +
                                   m_cli->workPath("designs/0.dst").toUtf8() + "\"}\n"),
                 plan.out);
        QVERIFY2(plan.lastLine().startsWith("{\"added\": 2, "), plan.out);

        const auto result = m_cli->run({"scan", "--json", "designs"});
        QCOMPARE(result.error, QByteArray());
        QVERIFY2(result.out.startsWith("{\"action\": \"unreadable\", \"file\": "), result.out);
        QCOMPARE(result.lastLine(), "{\"added\": 2, \"updated\": 0, \"moved\": 0, "
                                    "\"removed\": 0, \"unreadable\": 1, "
                                    "\"unreached\": 0}");
        QVERIFY(QFile::rename(m_cli->workPath("designs/0.dst"), m_cli->workPath("designs/n.dst")));
        const auto move = m_cli->run({"scan", "--json", "--dry-run"});
        QVERIFY2(move.out.contains("0.dst\", \"to\": \""), move.out);
    }

    void namesWhatTheDiskDoesNotGive()
    {
        makeDesigns(2);
        QVERIFY(QFile::link("/proc/self/mem", m_cli->workPath("designs/broken.dst")));
        QVERIFY(CatalogueFolder::write(m_cli->workPath("designs/bad.hus"), "junk"));
        const auto result = m_cli->run({"scan", "designs"});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.error.contains("designs/broken.dst: Input/output error"), result.error);
        QVERIFY2(result.error.contains("designs/bad.hus: "), result.error);
        QCOMPARE(result.lastLine(), "added 4, updated 0, moved 0, removed 0, unreadable 2");
        QVERIFY(catalogue().contains("designs/1.dst"));
    }

    void fullDiskLeavesTheCatalogue()
    {
        makeDesigns(1);
        QCOMPARE(m_cli->run({"scan", "designs"}).status, 0);
        const QByteArray before = catalogue();
        makeDesigns(40);
        // As a disk that takes no file of more than some KB.
        const QString script = R"(trap "" XFSZ; ulimit -f 4; exec "$0" scan)";
        QProcess process;
        QVERIFY(m_cli->start(process, {"-c", script, CLI_PATH}, "bash"));
        const auto result = CliProcess::finish(process);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.error.contains("hoopline-organizer.xml"), result.error);
        QCOMPARE(catalogue(), before);
    }

    void windsDownOnInterrupt()
    {
        makeDesigns(Many);
        QProcess process;
        QVERIFY(m_cli->start(process, {"scan", "designs"}));
        QTRY_VERIFY_WITH_TIMEOUT(previewCount() > 0, 60000);
        ::kill(pid_t(process.processId()), SIGINT);
        const auto result = CliProcess::finish(process);
        QCOMPARE(result.status, 130);
        // Some may have been painted whose turn had not come.
        const int read = result.lastLine().mid(int(qstrlen("added "))).split(',').first().toInt();
        QVERIFY(read <= previewCount() && read < Many);
        const QByteArray rest = QByteArray::number(Many - read);
        QVERIFY2(result.error.contains(rest + " new designs"), result.error);
        QCOMPARE(m_cli->run({"scan"}).lastLine(),
                 "added 0, updated " + rest + ", moved 0, removed 0, unreadable 0");
    }

    void leavesWhatOthersWroteMeanwhile()
    {
        QCOMPARE(m_cli->run({"scan"}).status, 0);
        makeDesigns(Many);
        QProcess process;
        QVERIFY(m_cli->start(process, {"scan", "designs"}));
        QTRY_VERIFY_WITH_TIMEOUT(previewCount() > 0, 60000);
        const QByteArray other = catalogue() + "<!-- by hand -->\n";
        const QString path = m_cli->dataPath("hoopline-organizer.xml");
        QVERIFY(CatalogueFolder::write(path, other));
        QVERIFY(CatalogueFolder::setDate(path, QDateTime::currentDateTime().addSecs(5)));
        ::kill(pid_t(process.processId()), SIGINT); // what is left to scan makes no difference
        const auto result = CliProcess::finish(process);
        QCOMPARE(result.status, 3);
        QVERIFY2(result.error.contains("changed meanwhile"), result.error);
        QCOMPARE(catalogue(), other);
    }

    void showsProgressOnTerminalOnly()
    {
        makeDesigns(20);
        const Terminal terminal;
        if (!terminal.isValid())
            QSKIP("there are no pseudo-terminals here");
        QProcess process;
        process.setStandardErrorFile(terminal.name());
        QVERIFY(m_cli->start(process, {"scan", "designs"}));
        const auto result = CliProcess::finish(process);
        const QByteArray text = terminal.read();
        QCOMPARE(result.status, 0);
        QVERIFY2(text.contains('[') && text.contains('%'), text);
        QVERIFY2(text.endsWith("\r\033[K"), text);
        QCOMPARE(result.out.count('\n'), 1);
    }

private:
    QByteArray catalogue() const
    {
        return CatalogueFolder::read(m_cli->dataPath("hoopline-organizer.xml"));
    }

    void makeDesigns(int count)
    {
        for (int i = 0; i < count; ++i) {
            DstDesign design(QByteArray::number(i));
            for (int k = 0; k < 200; ++k)
                design.stitch(k % 2 ? 100 : -100, i % 7 + 1);
            QVERIFY(design.writeTo(m_cli->workPath(QStringLiteral("designs/%1.dst").arg(i))));
        }
    }

    int previewCount() const
    {
        return QDir(m_cli->dataPath("previews")).entryList({"*.png"}).size();
    }

    std::unique_ptr<CliProcess> m_cli;
};

QTEST_GUILESS_MAIN(CliScanTest)
#include "tst_cli_scan.moc"
