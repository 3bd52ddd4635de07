#include "CliProcess.h"
#include "support/DstDesign.h"
#include "support/Rows.h"
#include <csignal>
#include <QtTest>

class CliSheetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QDir(m_cli.workPath()).mkpath("designs"));
        QVERIFY(DstDesign::square("Rose", 50).writeTo(m_cli.workPath("designs/rose.dst")));
        QVERIFY(DstDesign::square("Fern", 60).writeTo(m_cli.workPath("designs/fern.dst")));
        QCOMPARE(m_cli.run({"scan", "designs"}).status, 0);
        QVERIFY(DstDesign::square("New", 70).writeTo(m_cli.workPath("new.dst")));
    }

    void writes_data()
    {
        const Rows<QStringList, QByteArray> row("options", "line");
        row("all", {}, "designs 2, pages 1");
        row("search", {"--search", "name:rose", "--work"}, "designs 1, pages 2");
        row("without true size", {"--work", "--no-true-size"}, "designs 2, pages 2");
        row("not in the catalogue", {"new.dst", "designs/rose.dst"}, "designs 2, pages 1");
        row("not readable", {"gone.dst"}, "designs 1, pages 1");
        row("looks",
            {"--paper", "letter", "--landscape", "--columns", "1", "--title", "Title", "--facts",
             "tags,notes", "--by-folder", "--no-page-numbers"},
            "designs 2, pages 2");
        row("no facts", {"--facts", ""}, "designs 2, pages 1");
    }

    void writes()
    {
        QFETCH(QStringList, options);
        const QStringList arguments = QStringList{"sheet", "--force", "--pdf", "out.pdf"} + options;
        const CliProcess::Result result = m_cli.run(arguments);
        QCOMPARE(result.error, QByteArray());
        QCOMPARE(result.status, 0);
        QTEST(result.lastLine(), "line");
        QFile pdf(m_cli.workPath("out.pdf"));
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QVERIFY(pdf.readAll().startsWith("%PDF-"));
    }

    void refuses_data()
    {
        const Rows<QStringList, int> row("arguments", "status");
        row("no target", {}, 2);
        row("paper", {"--pdf", "x.pdf", "--paper", "papyrus"}, 2);
        row("columns", {"--pdf", "x.pdf", "--columns", "9"}, 2);
        row("facts", {"--pdf", "x.pdf", "--facts", "name,weight"}, 2);
        row("search", {"--pdf", "x.pdf", "--search", "stitches:<x"}, 2);
        row("no match", {"--pdf", "x.pdf", "--search", "name:lily"}, 1);
        row("over a design", {"--pdf", "new.dst", "--force"}, 2);
        row("folder missing", {"--pdf", "missing/x.pdf"}, 1);
    }

    void refuses()
    {
        QFETCH(QStringList, arguments);
        const CliProcess::Result result = m_cli.run(QStringList("sheet") + arguments);
        QTEST(result.status, "status");
        QVERIFY(!result.error.isEmpty());
        QVERIFY(!QFileInfo::exists(m_cli.workPath("x.pdf")));
    }

    void replacesOnlyWhenTold()
    {
        QFile kept(m_cli.workPath("kept.pdf"));
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("before") == 6);
        kept.close();
        QCOMPARE(m_cli.run({"sheet", "--pdf", "kept.pdf"}).status, 1);
        QCOMPARE(kept.size(), qint64(6));
        QCOMPARE(m_cli.run({"sheet", "--pdf", "kept.pdf", "--force"}).status, 0);
        QVERIFY(kept.size() > 1000);
    }

    void isInterrupted()
    {
        QStringList arguments{"sheet", "--work", "--pdf", "many.pdf"};
        for (int i = 0; i < 300; ++i) {
            const QString name = QStringLiteral("%1.dst").arg(i);
            QVERIFY(DstDesign::square("Many", 50).writeTo(m_cli.workPath(name)));
            arguments.append(name);
        }
        QProcess process;
        QVERIFY(m_cli.start(process, arguments));
        const QStringList part{".hoopline-*.part"};
        const QDir folder(m_cli.workPath());
        QTRY_VERIFY(!folder.entryList(part, QDir::Files | QDir::Hidden).isEmpty() ||
                    process.state() == QProcess::NotRunning);
        QCOMPARE(process.state(), QProcess::Running);
        kill(pid_t(process.processId()), SIGINT);
        QCOMPARE(CliProcess::finish(process).status, 130);
        QVERIFY(!QFileInfo::exists(m_cli.workPath("many.pdf")));
        QVERIFY(folder.entryList(part, QDir::Files | QDir::Hidden).isEmpty());
    }

private:
    CliProcess m_cli;
};

QTEST_GUILESS_MAIN(CliSheetTest)
#include "tst_cli_sheet.moc"
