#include "CliProcess.h"
#include "support/DstDesign.h"
#include <csignal>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

class CliSheetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writes_data();
    void writes();
    void refuses_data();
    void refuses();
    void replacesOnlyWhenTold();
    void isInterrupted();

private:
    CliProcess m_cli;
};

void CliSheetTest::initTestCase()
{
    QVERIFY(QDir(m_cli.workPath()).mkpath("designs"));
    QVERIFY(DstDesign::square("Rose", 50).writeTo(m_cli.workPath("designs/rose.dst")));
    QVERIFY(DstDesign::square("Fern", 60).writeTo(m_cli.workPath("designs/fern.dst")));
    QCOMPARE(m_cli.run({"scan", "designs"}).status, 0);
    QVERIFY(DstDesign::square("New", 70).writeTo(m_cli.workPath("new.dst")));
}

void CliSheetTest::writes_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("all") << QStringList{} << QByteArray("designs 2, pages 1");
    QTest::newRow("search") << QStringList{"--search", "name:rose", "--work"}
                            << QByteArray("designs 1, pages 2");
    QTest::newRow("without true size")
        << QStringList{"--work", "--no-true-size"} << QByteArray("designs 2, pages 2");
    QTest::newRow("not in the catalogue")
        << QStringList{"new.dst", "designs/rose.dst"} << QByteArray("designs 2, pages 1");
    QTest::newRow("not readable") << QStringList{"gone.dst"} << QByteArray("designs 1, pages 1");
    QTest::newRow("looks")
        << QStringList{"--paper",          "letter", "--landscape", "--columns",  "1",
                       "--title",          "Title",  "--facts",     "tags,notes", "--by-folder",
                       "--no-page-numbers"}
        << QByteArray("designs 2, pages 2");
    QTest::newRow("no facts") << QStringList{"--facts", ""} << QByteArray("designs 2, pages 1");
}

void CliSheetTest::writes()
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

void CliSheetTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("no target") << QStringList{} << 2;
    QTest::newRow("paper") << QStringList{"--pdf", "x.pdf", "--paper", "papyrus"} << 2;
    QTest::newRow("columns") << QStringList{"--pdf", "x.pdf", "--columns", "9"} << 2;
    QTest::newRow("facts") << QStringList{"--pdf", "x.pdf", "--facts", "name,weight"} << 2;
    QTest::newRow("search") << QStringList{"--pdf", "x.pdf", "--search", "stitches:<x"} << 2;
    QTest::newRow("no match") << QStringList{"--pdf", "x.pdf", "--search", "name:lily"} << 1;
    QTest::newRow("over a design") << QStringList{"--pdf", "new.dst", "--force"} << 2;
    QTest::newRow("folder missing") << QStringList{"--pdf", "missing/x.pdf"} << 1;
}

void CliSheetTest::refuses()
{
    QFETCH(QStringList, arguments);
    const CliProcess::Result result = m_cli.run(QStringList("sheet") + arguments);
    QTEST(result.status, "status");
    QVERIFY(!result.error.isEmpty());
    QVERIFY(!QFileInfo::exists(m_cli.workPath("x.pdf")));
}

void CliSheetTest::replacesOnlyWhenTold()
{
    QFile kept(m_cli.workPath("kept.pdf"));
    QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("before") == 6);
    kept.close();
    QCOMPARE(m_cli.run({"sheet", "--pdf", "kept.pdf"}).status, 1);
    QCOMPARE(kept.size(), qint64(6));
    QCOMPARE(m_cli.run({"sheet", "--pdf", "kept.pdf", "--force"}).status, 0);
    QVERIFY(kept.size() > 1000);
}

void CliSheetTest::isInterrupted()
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

QTEST_GUILESS_MAIN(CliSheetTest)
#include "tst_cli_sheet.moc"
