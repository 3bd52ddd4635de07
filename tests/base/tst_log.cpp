#include "base/ErrorCollector.h"
#include "base/FileError.h"
#include "base/GDebug.h"

#include <memory>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <thread>
#include <vector>

/** The log's filters and format, and the error family. */
class tst_Log : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void closestAncestorDecides_data();
    void closestAncestorDecides();
    void line();
    void forms_data();
    void forms();
    void unwritableOutputFallsBack();
    void globalMaskFilters();
    void qtMessages();
    void crashLinesNameNoFile_data();
    void crashLinesNameNoFile();
    void ringKeepsTheLastLines();
    void fileErrors();
    void errorTypes();
    void collector();

private:
    QStringList logged() const;

    QTemporaryDir m_dir;
    QString m_file;
};

void tst_Log::init()
{
    GDebug::mGlobalLogLevel = LogLevel::All;
    m_file = m_dir.filePath(QStringLiteral("log"));
    theLogServer()->setFacilityWidth(6);
    theLogServer()->setOutputFile(m_file);
}

QStringList tst_Log::logged() const
{
    theLogServer()->setOutputFile(QString());
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("no file")};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    // The time of day differs from run to run.
    for (QString &line : lines)
        line.replace(QRegularExpression(QStringLiteral("[0-9]{2}\\.[0-9]{3}")),
                     QStringLiteral("T"));
    return lines;
}

void tst_Log::closestAncestorDecides_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("logs");
    QTest::newRow("none") << "x"
                          << "a/b/c" << 1 << true;
    QTest::newRow("grandparent, set") << "a"
                                      << "a/b/c" << 2 << true;
    QTest::newRow("grandparent, clear") << "a"
                                        << "a/b/c" << 1 << false;
    QTest::newRow("itself") << "a/b/c"
                            << "a/b/c" << 4 << false;
    QTest::newRow("root") << "/"
                          << "a/b/c" << 1 << false;
}

void tst_Log::closestAncestorDecides()
{
    QFETCH(QString, configured);
    QFETCH(QString, asked);
    QFETCH(int, level);
    GLogServer server;
    server.setLogLevelForFacility(configured.toUtf8().constData(), 2);
    QTEST(server.canLog(asked.toUtf8().constData(), level), "logs");
    QCOMPARE(server.knownFacilities(), QStringList(asked));
    QCOMPARE(server.logLevelForFacility(configured), 2);
    QCOMPARE(server.logLevelForFacility(QStringLiteral("other")), 0x7fffffff);
}

void tst_Log::line()
{
    theLogServer()->addSuppression(QStringLiteral("hush"));
    theLogServer()->logMessage("F", 2, QStringLiteral("text %1"));
    theLogServer()->logMessage("F", 4, QStringLiteral("one\ntwo\nthree"));
    theLogServer()->logMessage(nullptr, 8, QString());
    theLogServer()->logMessage("F", 1, QStringLiteral("  hush\n"));
    theLogServer()->logMessage("LongFacility", 3, QStringLiteral("ä"));
    const QStringList expected{
        QStringLiteral("WARN | T |      F | text %1"), QStringLiteral("CRIT | T |      F | one"),
        QStringLiteral("CRIT | T |      F + two"),     QStringLiteral("CRIT | T |      F + three"),
        QStringLiteral("FUNC | T |        | "),        QStringLiteral(" | T | LongFacility | ä")};
    QCOMPARE(logged(), expected);
}

void tst_Log::forms_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("size") << QVariant(QSize(1, 2)) << "QSize(1, 2)";
    QTest::newRow("point") << QVariant(QPointF(1.5, -2)) << "QPointF(1.5, -2)";
    QTest::newRow("rect") << QVariant(QRect(1, 2, 3, 4)) << "QRect(1, 2, 3, 4)";
    QTest::newRow("line") << QVariant(QLine(1, 2, 3, 4)) << "QLine(QPoint(1, 2) - QPoint(3, 4))";
    QTest::newRow("date") << QVariant(QDate(2020, 2, 29)) << "QDate(2020-02-29)";
    QTest::newRow("date-time") << QVariant(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3)))
                               << "QDateTime(2020-02-29 01:02:03)";
    QTest::newRow("url") << QVariant(QUrl("https://a.example")) << "QUrl(https://a.example)";
    QTest::newRow("empty list") << QVariant(QVariantList()) << "QList()";
    QTest::newRow("list") << QVariant(QVariantList{1, QSize(2, 3)}) << "QList(1, QSize(2, 3))";
    QTest::newRow("map") << QVariant(QVariantMap{{"a", 1}, {"b", 2}}) << "QMap(a=1, b=2)";
}

void tst_Log::forms()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    gDebug("F") << value << "end";
    QCOMPARE(logged(),
             QStringList(QStringLiteral("DEBG | T |      F | ") + text + QStringLiteral(" end")));
}

void tst_Log::unwritableOutputFallsBack()
{
    theLogServer()->setOutputFile(m_dir.filePath(QStringLiteral("missing/log")));
    theLogServer()->logMessage("F", 1, QStringLiteral("on stderr, and no crash"));
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("missing"))));
}

void tst_Log::globalMaskFilters()
{
    theLogServer()->setGlobalLogLevel(6);
    gDebug("F") << "no";
    gWarning("F") << "yes";
    gCritical("F").nospace() << "a" << 1;
    gWarning("F").setEnabled(false) << "no";
    QCOMPARE(logged(), (QStringList{QStringLiteral("WARN | T |      F | yes"),
                                    QStringLiteral("CRIT | T |      F | a1")}));
}

void tst_Log::qtMessages()
{
    const QtMessageHandler previous = qInstallMessageHandler(&GDebug::redirectQDebug);
    QMessageLogger("q.cpp", 1, "f").warning("w");
    QMessageLogger(nullptr, 0, nullptr).info("i");
    qInstallMessageHandler(previous);
    QCOMPARE(logged(), (QStringList{QStringLiteral("WARN | T |  q.cpp | w"),
                                    QStringLiteral("DEBG | T |        | i")}));
}

void tst_Log::crashLinesNameNoFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("kept");
    QTest::newRow("plain") << "scan took 1.5 s." << true;
    QTest::newRow("path") << "opening /home/jo/my rose" << false;
    QTest::newRow("other path") << "opening C:\\roses" << false;
    QTest::newRow("name") << "cannot read my rose.dst" << false;
    QTest::newRow("digit suffix") << "cannot read my rose.7" << false;
}

void tst_Log::crashLinesNameNoFile()
{
    QFETCH(QString, text);
    QFETCH(bool, kept);
    GLogServer server;
    server.setOutputFile(m_file);
    server.logMessage("F", 1, text);
    const LogRing &ring = server.recentLines();
    const std::string_view line = ring.line(LogRing::LineCount - 1);
    QCOMPARE(line.find(text.toStdString()) != std::string_view::npos, kept);
    QVERIFY(line.find("rose") == std::string_view::npos);
    QVERIFY(line.find("F | ") != std::string_view::npos);
}

void tst_Log::ringKeepsTheLastLines()
{
    LogRing ring;
    QVERIFY(ring.line(0).empty());
    std::vector<std::thread> writers;
    for (int i = 0; i < 4; ++i)
        writers.emplace_back([&ring] {
            for (int n = 0; n < 1000; ++n)
                ring.append(std::string(1000, 'x'));
        });
    for (std::thread &writer : writers)
        writer.join();
    for (std::size_t i = 0; i < LogRing::LineCount; ++i)
        QCOMPARE(ring.line(i).size(), LogRing::LineSize);
    ring.append("last");
    QVERIFY(ring.line(LogRing::LineCount - 1) == "last");
}

void tst_Log::fileErrors()
{
    const QString message = QStringLiteral("bad %1");
    const QString file = QStringLiteral("a.xml");
    const FileError plain(message, file, 0);
    const FileError placed(message, file, 3);
    QCOMPARE(plain.toString(), QStringLiteral("a.xml: bad %1"));
    QCOMPARE(placed.toString(), QStringLiteral("a.xml:3: bad %1"));
    QCOMPARE(placed.errorMessage(), message);
    QVERIFY(placed.errorType().isEmpty());
    QCOMPARE(FileErrorList({plain, placed}).toString(),
             QStringLiteral("a.xml: bad %1\na.xml:3: bad %1"));
}

void tst_Log::errorTypes()
{
    const auto typeOf = [](const Error &error) {
        return FileError(error, QStringLiteral("f"), 1).errorType();
    };
    const QString text = QStringLiteral("t");
    QCOMPARE(typeOf(OutOfMemoryError()), QStringLiteral("OutOfMemoryError"));
    QCOMPARE(typeOf(ErrorTypeConflict(text)), QStringLiteral("ErrorTypeConflict"));
    QCOMPARE(typeOf(ErrorDoesNotExist(text)), QStringLiteral("ErrorDoesNotExist"));
    QCOMPARE(typeOf(ErrorAlreadyExists(text)), QStringLiteral("ErrorAlreadyExists"));
    QCOMPARE(typeOf(FileError(text, text, 1)), QStringLiteral("FileError"));
    QCOMPARE(typeOf(FileErrorList({})), QStringLiteral("FileErrorList"));
    QCOMPARE(typeOf(AbortException()), QStringLiteral("Error"));
    QCOMPARE(OutOfMemoryError().toString(), QStringLiteral("Out of memory"));
    QCOMPARE(AbortException().toString(), QStringLiteral("Aborting"));
}

void tst_Log::collector()
{
    ErrorCollector collector;
    QVERIFY(collector.takeCollectedErrors().isEmpty());
    std::thread worker([&collector] { collector.addError(Error(QStringLiteral("e"))); });
    worker.join();
    const QList<Error> errors = collector.takeCollectedErrors();
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().toString(), QStringLiteral("e"));
    QVERIFY(collector.takeCollectedErrors().isEmpty());
}

QTEST_GUILESS_MAIN(tst_Log)
#include "tst_log.moc"
