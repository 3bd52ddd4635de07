#include "base/ErrorCollector.h"
#include "base/FileError.h"
#include "base/GDebug.h"
#include "support/Rows.h"

#include <memory>
#include <QtTest>
#include <thread>
#include <vector>

/** The log's filters and format, and the error family. */
class tst_Log : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        GDebug::mGlobalLogLevel = LogLevel::All;
        m_file = m_dir.filePath("log");
        theLogServer()->setFacilityWidth(6);
        theLogServer()->setOutputFile(m_file);
    }

    void closestAncestorDecides_data()
    {
        const Rows<QString, QString, int, bool> row("configured", "asked", "level", "logs");
        row("none", "x", "a/b/c", 1, true);
        row("grandparent, set", "a", "a/b/c", 2, true);
        row("grandparent, clear", "a", "a/b/c", 1, false);
        row("itself", "a/b/c", "a/b/c", 4, false);
        row("root", "/", "a/b/c", 1, false);
    }

    void closestAncestorDecides()
    {
        QFETCH(QString, configured);
        QFETCH(QString, asked);
        QFETCH(int, level);
        GLogServer server;
        server.setLogLevelForFacility(configured.toUtf8().constData(), 2);
        QTEST(server.canLog(asked.toUtf8().constData(), level), "logs");
        QCOMPARE(server.knownFacilities(), QStringList(asked));
        QCOMPARE(server.logLevelForFacility(configured), 2);
        QCOMPARE(server.logLevelForFacility("other"), 0x7fffffff);
    }

    void line()
    {
        theLogServer()->addSuppression("hush");
        theLogServer()->logMessage("F", 2, "text %1");
        theLogServer()->logMessage("F", 4, "one\ntwo\nthree");
        theLogServer()->logMessage(nullptr, 8, QString());
        theLogServer()->logMessage("F", 1, "  hush\n");
        theLogServer()->logMessage("LongFacility", 3, "ä");
        const QStringList expected{"WARN | T |      F | text %1", "CRIT | T |      F | one",
                                   "CRIT | T |      F + two",     "CRIT | T |      F + three",
                                   "FUNC | T |        | ",        " | T | LongFacility | ä"};
        QCOMPARE(logged(), expected);
    }

    void forms_data()
    {
        const Rows<QVariant, QString> row("value", "text");
        row("size", QVariant(QSize(1, 2)), "QSize(1, 2)");
        row("point", QVariant(QPointF(1.5, -2)), "QPointF(1.5, -2)");
        row("rect", QVariant(QRect(1, 2, 3, 4)), "QRect(1, 2, 3, 4)");
        row("line", QVariant(QLine(1, 2, 3, 4)), "QLine(QPoint(1, 2) - QPoint(3, 4))");
        row("date", QVariant(QDate(2020, 2, 29)), "QDate(2020-02-29)");
        row("date-time", QVariant(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3))),
            "QDateTime(2020-02-29 01:02:03)");
        row("url", QVariant(QUrl("https://a.example")), "QUrl(https://a.example)");
        row("empty list", QVariant(QVariantList()), "QList()");
        row("list", QVariant(QVariantList{1, QSize(2, 3)}), "QList(1, QSize(2, 3))");
        row("map", QVariant(QVariantMap{{"a", 1}, {"b", 2}}), "QMap(a=1, b=2)");
    }

    void forms()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        gDebug("F") << value << "end";
        QCOMPARE(logged(), QStringList("DEBG | T |      F | " + text + " end"));
    }

    void unwritableOutputFallsBack()
    {
        theLogServer()->setOutputFile(m_dir.filePath("missing/log"));
        theLogServer()->logMessage("F", 1, "on stderr, and no crash");
        QVERIFY(!QFile::exists(m_dir.filePath("missing")));
    }

    void globalMaskFilters()
    {
        theLogServer()->setGlobalLogLevel(6);
        gDebug("F") << "no";
        gWarning("F") << "yes";
        gCritical("F").nospace() << "a" << 1;
        gWarning("F").setEnabled(false) << "no";
        QCOMPARE(logged(), (QStringList{"WARN | T |      F | yes", "CRIT | T |      F | a1"}));
    }

    void qtMessages()
    {
        const QtMessageHandler previous = qInstallMessageHandler(&GDebug::redirectQDebug);
        QMessageLogger("q.cpp", 1, "f").warning("w");
        QMessageLogger(nullptr, 0, nullptr).info("i");
        qInstallMessageHandler(previous);
        QCOMPARE(logged(), (QStringList{"WARN | T |  q.cpp | w", "DEBG | T |        | i"}));
    }

    void crashLinesNameNoFile_data()
    {
        const Rows<QString, bool> row("text", "kept");
        row("plain", "scan took 1.5 s.", true);
        row("path", "opening /home/jo/my rose", false);
        row("other path", "opening C:\\roses", false);
        row("name", "cannot read my rose.dst", false);
        row("digit suffix", "cannot read my rose.7", false);
    }

    void crashLinesNameNoFile()
    {
        QFETCH(QString, text);
        GLogServer server;
        server.setOutputFile(m_file);
        server.logMessage("F", 1, text);
        const LogRing &ring = server.recentLines();
        const std::string_view line = ring.line(LogRing::LineCount - 1);
        QTEST(line.find(text.toStdString()) != std::string_view::npos, "kept");
        QVERIFY(line.find("rose") == std::string_view::npos);
        QVERIFY(line.find("F | ") != std::string_view::npos);
    }

    void ringKeepsTheLastLines()
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

    void fileErrors()
    {
        const QString message = "bad %1";
        const QString file = "a.xml";
        const FileError plain(message, file, 0);
        const FileError placed(message, file, 3);
        QCOMPARE(plain.toString(), "a.xml: bad %1");
        QCOMPARE(placed.toString(), "a.xml:3: bad %1");
        QCOMPARE(placed.errorMessage(), message);
        QVERIFY(placed.errorType().isEmpty());
        QCOMPARE(FileErrorList({plain, placed}).toString(), "a.xml: bad %1\na.xml:3: bad %1");
    }

    void collector()
    {
        ErrorCollector collector;
        QVERIFY(collector.takeCollectedErrors().isEmpty());
        std::thread worker([&collector] { collector.addError(Error("e")); });
        worker.join();
        const QList<Error> errors = collector.takeCollectedErrors();
        QCOMPARE(errors.size(), 1);
        QCOMPARE(errors.first().toString(), "e");
        QVERIFY(collector.takeCollectedErrors().isEmpty());
    }

private:
    QStringList logged() const
    {
        theLogServer()->setOutputFile(QString());
        QFile file(m_file);
        if (!file.open(QIODevice::ReadOnly))
            return {"no file"};
        QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        lines.removeLast();
        // The time of day differs from run to run.
        for (QString &line : lines)
            line.replace(QRegularExpression("[0-9]{2}\\.[0-9]{3}"), "T");
        return lines;
    }

    QTemporaryDir m_dir;
    QString m_file;
};

QTEST_GUILESS_MAIN(tst_Log)
#include "tst_log.moc"
