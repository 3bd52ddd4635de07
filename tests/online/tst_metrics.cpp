#include "base/GlobalSettings.h"
#include "catalogue/sync/FileSyncTracking.h"
#include "online/metrics/GlobalTracking.h"
#include "online/metrics/Metrics.h"
#include "support/HttpServer.h"
#include "support/Rows.h"
#include "support/TestClock.h"

#include <memory>
#include <QGuiApplication>
#include <QtTest>

namespace {

/** Passes a little real time too, in which a server may answer. */
class ServingClock : public TestClock
{
public:
    void sleep(Milliseconds pause) override
    {
        TestClock::sleep(pause);
        QTest::qWait(20);
    }
};

const QString Uuid = "0123456789abcdef0123456789abcdef";

QJsonObject json(const HttpServer::Request &request)
{
    return QJsonDocument::fromJson(request.body).object();
}

} // namespace

/** What leaves the machine, and when, seen from a server's side. */
class tst_Metrics : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        GSettings::setIniFile(m_dir.filePath("s.ini"));
        GSettings().flushSettings({});
        m_clock = std::make_shared<ServingClock>();
        serve({});
    }

    void cleanup()
    {
        Metrics::deleteInstance();
        Metrics::setEndpoint(QUrl());
    }

    void freshProfileSendsNothing()
    {
        Metrics::createInstance("1");
        QVERIFY(Metrics::instance()->doNotTrack());
        QVERIFY(Metrics::instance()->id().isEmpty());
        GlobalTracking::applicationStarted();
        Metrics::instance()->initNetworkAccessManager();
        FileSyncTracking(&Metrics::submitEvent).endSync(1, 2);
        GlobalTracking::aboutToQuit();
        QTest::qWait(100);
        QCOMPARE(m_server->connections(), 0);
        const QString uuid = GSettings().statisticsUUID();
        QVERIFY(QRegularExpression("^[0-9a-f]{32}$").match(uuid).hasMatch());
        QVERIFY(GSettings().contains("sendStatisticsEnabled"));
        QVERIFY(!GSettings().sendStatisticsEnabled());
    }

    void wireFormat()
    {
        agreed();
        Metrics::submitEvent("ev", {{"n", 7}});
        Metrics::submitProperty("only", true);
        Metrics::submitEvent("bare", {});
        QTRY_COMPARE(m_server->requests().size(), 3);
        // What is empty is left out.
        QList<QJsonObject> expected{{{"e", "ev"}, {"p", QJsonObject{{"n", 7}}}},
                                    {{"p", QJsonObject{{"only", true}}}},
                                    {{"e", "bare"}}};
        for (const HttpServer::Request &request : m_server->requests()) {
            QCOMPARE(request.method, "POST");
            QCOMPARE(request.target, "/p");
            QCOMPARE(request.headers.value("user-agent"), "zq-qt");
            QCOMPARE(request.headers.value("content-type"), "application/x-www-form-urlencoded");
            QJsonObject body = json(request);
            QCOMPARE(body.take("c").toString(), "40817263");
            QCOMPARE(body.take("u").toString(), Uuid);
            QVERIFY(body.take("ts").isDouble());
            QVERIFY2(expected.removeOne(body), request.body.constData());
        }
    }

    void switchingOffIsAnnouncedOnce()
    {
        agreed()->setDoNotTrack(true);
        Metrics::submitEvent("silence", {});
        QTRY_COMPARE(m_server->requests().size(), 2);
        QTest::qWait(50);
        QCOMPARE(told(), (QMap<QString, QJsonObject>{{QString(), {{"do-not-track", true}}},
                                                     {"do-not-track", {{"value", true}}}}));
        QCOMPARE(m_server->requests().size(), 2);
        QVERIFY(!GSettings().sendStatisticsEnabled());
    }

    void choiceIsRemembered()
    {
        Metrics::createInstance("1");
        const QString uuid = GSettings().statisticsUUID();
        Metrics::instance()->setDoNotTrack(false);
        QVERIFY(GSettings().sendStatisticsEnabled());
        Metrics::createInstance("1");
        QVERIFY(!Metrics::instance()->doNotTrack());
        QCOMPARE(Metrics::instance()->id(), uuid);
    }

    // The start is told with its own time, once there is a network.
    void startAndQuit()
    {
        GlobalSettings().setGridScaleFactor(70);
        GSettings().setValue("firstStartDate", QDate::currentDate().addDays(-3));
        Metrics *metrics = agreed(false);
        GlobalTracking::applicationStarted();
        const qint64 started =
            std::chrono::duration_cast<std::chrono::seconds>(m_clock->time).count();
        m_clock->time += std::chrono::minutes(1);
        QCOMPARE(m_server->connections(), 0);
        metrics->initNetworkAccessManager();
        QTRY_COMPARE(m_server->requests().size(), 1);
        const QJsonValue time = json(m_server->requests().first()).value("ts");
        QCOMPARE(time, QJsonValue(started));
        const QJsonObject start = told().value("hl start");
        QCOMPARE(start.keys(),
                 (QStringList{"cpu cores", "days installed", "os", "os version", "screen height",
                              "screen width", "system memory", "version"}));
        QCOMPARE(start.value("days installed").toInt(), 3);
        GlobalTracking::aboutToQuit();
        QCOMPARE(told().value("hl quit"), (QJsonObject{{"grid scale factor", 70}}));
    }

    void synchronisationNamesNoFile()
    {
        agreed();
        FileSyncTracking tracking(&Metrics::submitEvent);
        tracking.beginSync({"*.pes", "*.DST"});
        tracking.logFileCountByExtension({"/home/jo/rose.PES", "/home/jo/rose.pes", "/x.dst/rose",
                                          "/home/jo/rose.vp3", "/home/jo/rose.exp+", "dst",
                                          "/home/jo/rose.txt"});
        QCOMPARE(tracking.supportedFiles(),
                 (QStringList{"/home/jo/rose.PES", "/home/jo/rose.pes"}));
        tracking.fileFormatError();
        tracking.beginRenderFile();
        tracking.endRenderFile(2'000'000'000);
        tracking.beginRenderFile();
        tracking.endRenderFile(2'000'000'042);
        tracking.endSync(5, 6);
        QTRY_COMPARE(m_server->requests().size(), 3);
        for (const HttpServer::Request &request : m_server->requests())
            QVERIFY(!request.body.contains("rose") && !request.body.contains("/"));

        QCOMPARE(told().value("hl project info"),
                 (QJsonObject{{"num smartfolders", 5}, {"num files", 6}}));
        QJsonObject loader = told().value("hl loader info");
        QVERIFY(loader.take("render time").isDouble());
        QVERIFY(loader.take("sync time").isDouble());
        QCOMPARE(loader, (QJsonObject{{"num files", 2},
                                      {"num errors", 1},
                                      {"rendered files", 2},
                                      {"rendered stitches", 4'000'000'042.0}}));
        const QJsonObject types = told().value("hl found file types");
        QCOMPARE(types.size(), 19);
        QCOMPARE(types.value("pes").toInt(), 2);
        QCOMPARE(types.value("exp+").toInt(), 1);
        QCOMPARE(types.value("dst").toInt(), 0);
    }

    void oddServers_data()
    {
        const Rows<HttpServer::Response, bool> row("response", "tls");
        const auto odd = HttpServer::oddAnswers();
        for (auto answer = odd.begin(); answer != odd.end(); ++answer)
            row(answer.key().constData(), answer.value(), false);
        HttpServer::Response silent;
        silent.silent = true;
        row("silent", silent, false);
        row("bad certificate", {}, true);
    }

    // Quitting waits for two seconds at most, whatever the server does.
    void oddServers()
    {
        QFETCH(HttpServer::Response, response);
        QFETCH(bool, tls);
        serve(response, tls);
        agreed();
        Metrics::submitEvent("e", {});
        QTRY_VERIFY(!m_server->requests().isEmpty());
        const auto before = m_clock->time;
        GlobalTracking::aboutToQuit();
        Metrics::deleteInstance();
        QVERIFY(m_clock->time - before <= std::chrono::seconds(2));
        QVERIFY(m_server->requests().size() >= 2);
    }

    void links()
    {
        const QString plain = "https://a.example/b";
        Metrics *metrics = agreed(false);
        QCOMPARE(metrics->decorateLink(plain), plain + "?_zq=" + Uuid);
        QCOMPARE(metrics->decorateLink(plain + "?c=d"), plain + "?c=d&_zq=" + Uuid);
        metrics->setDoNotTrack(true);
        QCOMPARE(metrics->decorateLink(plain), plain);
    }

private:
    void serve(const HttpServer::Response &response, bool tls = false)
    {
        m_server = std::make_unique<HttpServer>(
            [response](const HttpServer::Request &) { return response; }, tls);
        Metrics::setEndpoint(m_server->url("/p"));
    }

    /** Starts the client of a user who has agreed. */
    Metrics *agreed(bool online = true)
    {
        GSettings().setStatisticsUUID(Uuid);
        GSettings().setSendStatisticsEnabled(true);
        Metrics::createInstance("40817263", m_clock);
        if (online)
            Metrics::instance()->initNetworkAccessManager();
        return Metrics::instance();
    }

    /** By the event's name, what the server has been told of it. */
    QMap<QString, QJsonObject> told() const
    {
        QMap<QString, QJsonObject> properties;
        for (const HttpServer::Request &request : m_server->requests())
            properties.insert(json(request).value("e").toString(),
                              json(request).value("p").toObject());
        return properties;
    }

    QTemporaryDir m_dir;
    std::unique_ptr<HttpServer> m_server;
    std::shared_ptr<ServingClock> m_clock;
};

QTEST_MAIN(tst_Metrics)
#include "tst_metrics.moc"
