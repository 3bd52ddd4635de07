#include "app/base/GlobalSettings.h"
#include "online/HttpServer.h"
#include "online/metrics/FileSyncTracking.h"
#include "online/metrics/GlobalTracking.h"
#include "online/metrics/Metrics.h"
#include "online/metrics/ReplyLimits.h"

#include <memory>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr qint64 HugeBody = 100 * 1024 * 1024;

HttpServer::Response fine(const HttpServer::Request &)
{
    return {};
}

QJsonObject json(const HttpServer::Request &request)
{
    return QJsonDocument::fromJson(request.body).object();
}

} // namespace

Q_DECLARE_METATYPE(HttpServer::Response)

/** What leaves the machine, and when, seen from a server's side. */
class tst_Metrics : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void freshProfileSendsNothing();
    void waitsForTheNetworkLayer();
    void wireFormat();
    void switchingOffIsAnnouncedOnce();
    void choiceIsRemembered();
    void startAndQuit();
    void synchronisationNamesNoFile();
    void oddServers_data();
    void oddServers();
    void badCertificateIsAccepted();
    void links();
    void withoutAnInstance();
    void agreementText();

private:
    void serve(HttpServer::Handler handler, bool tls = false);
    static void agree();
    QStringList events() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HttpServer> m_server;
};

void tst_Metrics::init()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("s.ini")));
    GSettings().flushSettings({});
    serve(&fine);
}

void tst_Metrics::cleanup()
{
    Metrics::deleteInstance();
    Metrics::setEndpoint(QUrl());
}

void tst_Metrics::serve(HttpServer::Handler handler, bool tls)
{
    m_server = std::make_unique<HttpServer>(std::move(handler), tls);
    Metrics::setEndpoint(m_server->url(QStringLiteral("/p")));
}

void tst_Metrics::agree()
{
    GSettings settings;
    settings.setStatisticsUUID(QStringLiteral("0123456789abcdef0123456789abcdef"));
    settings.setSendStatisticsEnabled(true);
}

QStringList tst_Metrics::events() const
{
    QStringList names;
    for (const HttpServer::Request &request : m_server->requests())
        names.append(json(request).value(QStringLiteral("e")).toString());
    return names;
}

void tst_Metrics::freshProfileSendsNothing()
{
    Metrics::createInstance(QStringLiteral("1"));
    QVERIFY(Metrics::instance()->doNotTrack());
    QVERIFY(Metrics::instance()->id().isEmpty());
    GlobalTracking::applicationStarted();
    Metrics::instance()->initNetworkAccessManager();
    FileSyncTracking().endSync(1, 2);
    GlobalTracking::aboutToQuit();
    QTest::qWait(100);
    QCOMPARE(m_server->connections(), 0);
    const QString uuid = GSettings().statisticsUUID();
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]{32}$")).match(uuid).hasMatch());
    QVERIFY(GSettings().contains(QStringLiteral("sendStatisticsEnabled")));
    QVERIFY(!GSettings().sendStatisticsEnabled());
}

void tst_Metrics::waitsForTheNetworkLayer()
{
    agree();
    Metrics::createInstance(QStringLiteral("1"));
    const qint64 before = QDateTime::currentMSecsSinceEpoch() / 1000;
    Metrics::submitEvent(QStringLiteral("one"), {});
    Metrics::submitEvent(QStringLiteral("two"), {});
    const qint64 after = QDateTime::currentMSecsSinceEpoch() / 1000;
    QTest::qWait(1100);
    QCOMPARE(m_server->connections(), 0);
    Metrics::instance()->initNetworkAccessManager();
    QTRY_COMPARE(m_server->requests().size(), 2);
    for (const HttpServer::Request &request : m_server->requests()) {
        const qint64 time = qint64(json(request).value(QStringLiteral("ts")).toDouble());
        QVERIFY(time >= before && time <= after);
    }
}

void tst_Metrics::wireFormat()
{
    agree();
    Metrics::createInstance(QStringLiteral("40817263"));
    Metrics::instance()->initNetworkAccessManager();
    Metrics::submitEvent(QStringLiteral("ev"), {{QStringLiteral("n"), 7}});
    Metrics::submitProperty(QStringLiteral("only"), true);
    Metrics::submitEvent(QStringLiteral("bare"), {});
    QTRY_COMPARE(m_server->requests().size(), 3);
    QMap<QString, QJsonObject> bodies;
    for (const HttpServer::Request &request : m_server->requests()) {
        QCOMPARE(request.method, QByteArray("POST"));
        QCOMPARE(request.target, QByteArray("/p"));
        QCOMPARE(request.headers.value("user-agent"), QByteArray("zq-qt"));
        QCOMPARE(request.headers.value("content-type"),
                 QByteArray("application/x-www-form-urlencoded"));
        QJsonObject body = json(request);
        QCOMPARE(body.take(QStringLiteral("c")).toString(), QStringLiteral("40817263"));
        QCOMPARE(body.take(QStringLiteral("u")).toString(),
                 QStringLiteral("0123456789abcdef0123456789abcdef"));
        QVERIFY(body.take(QStringLiteral("ts")).isDouble());
        bodies.insert(body.value(QStringLiteral("e")).toString(), body);
    }
    QCOMPARE(bodies.value(QStringLiteral("ev")),
             (QJsonObject{{"e", "ev"}, {"p", QJsonObject{{"n", 7}}}}));
    QCOMPARE(bodies.value(QString()), (QJsonObject{{"p", QJsonObject{{"only", true}}}}));
    QCOMPARE(bodies.value(QStringLiteral("bare")), (QJsonObject{{"e", "bare"}}));
}

void tst_Metrics::switchingOffIsAnnouncedOnce()
{
    agree();
    Metrics::createInstance(QStringLiteral("1"));
    Metrics::instance()->initNetworkAccessManager();
    Metrics::instance()->setDoNotTrack(true);
    Metrics::submitEvent(QStringLiteral("silence"), {});
    QTRY_COMPARE(m_server->requests().size(), 2);
    QTest::qWait(50);
    QStringList names = events();
    names.sort();
    QCOMPARE(names, (QStringList{QString(), QStringLiteral("do-not-track")}));
    QVERIFY(!GSettings().sendStatisticsEnabled());
}

void tst_Metrics::choiceIsRemembered()
{
    Metrics::createInstance(QStringLiteral("1"));
    const QString uuid = GSettings().statisticsUUID();
    Metrics::instance()->setDoNotTrack(false);
    QVERIFY(GSettings().sendStatisticsEnabled());
    Metrics::createInstance(QStringLiteral("1"));
    QVERIFY(!Metrics::instance()->doNotTrack());
    QCOMPARE(Metrics::instance()->id(), uuid);
}

void tst_Metrics::startAndQuit()
{
    agree();
    GlobalSettings().setGridScaleFactor(70);
    GSettings().setValue(QStringLiteral("firstStartDate"), QDate::currentDate().addDays(-3));
    Metrics::createInstance(QStringLiteral("1"));
    GlobalTracking::applicationStarted();
    Metrics::instance()->initNetworkAccessManager();
    QTRY_COMPARE(m_server->requests().size(), 1);
    const QJsonObject start =
        json(m_server->requests().first()).value(QStringLiteral("p")).toObject();
    QStringList keys = start.keys();
    QCOMPARE(keys, (QStringList{"cpu cores", "days installed", "os", "os version", "screen height",
                                "screen width", "system memory", "version"}));
    QCOMPARE(start.value(QStringLiteral("days installed")).toInt(), 3);
    GlobalTracking::aboutToQuit();
    QCOMPARE(events().last(), QStringLiteral("hl quit"));
    QCOMPARE(json(m_server->requests().last()).value(QStringLiteral("p")).toObject(),
             (QJsonObject{{"grid scale factor", 70}}));
}

void tst_Metrics::synchronisationNamesNoFile()
{
    agree();
    Metrics::createInstance(QStringLiteral("1"));
    Metrics::instance()->initNetworkAccessManager();
    FileSyncTracking tracking;
    tracking.beginSync({QStringLiteral("*.pes"), QStringLiteral("*.DST")});
    tracking.logFileCountByExtension({"/home/jo/rose.PES", "/home/jo/rose.pes", "/x.dst/rose",
                                      "/home/jo/rose.vp3", "/home/jo/rose.exp+", "dst",
                                      "/home/jo/rose.txt"});
    QCOMPARE(tracking.supportedFiles(), (QStringList{"/home/jo/rose.PES", "/home/jo/rose.pes"}));
    tracking.fileFormatError();
    tracking.beginRenderFile();
    tracking.endRenderFile(40);
    tracking.beginRenderFile();
    tracking.endRenderFile(2);
    tracking.endSync(5, 6);
    QTRY_COMPARE(m_server->requests().size(), 3);

    QMap<QString, QJsonObject> properties;
    for (const HttpServer::Request &request : m_server->requests()) {
        QVERIFY(!request.body.contains("rose") && !request.body.contains("/"));
        properties.insert(json(request).value(QStringLiteral("e")).toString(),
                          json(request).value(QStringLiteral("p")).toObject());
    }
    QCOMPARE(properties.value(QStringLiteral("hl project info")),
             (QJsonObject{{"num smartfolders", 5}, {"num files", 6}}));
    QJsonObject loader = properties.value(QStringLiteral("hl loader info"));
    QVERIFY(loader.take(QStringLiteral("render time")).isDouble());
    QVERIFY(loader.take(QStringLiteral("sync time")).isDouble());
    QCOMPARE(loader, (QJsonObject{{"num files", 2},
                                  {"num errors", 1},
                                  {"rendered files", 2},
                                  {"rendered stitches", 42}}));
    const QJsonObject types = properties.value(QStringLiteral("hl found file types"));
    QCOMPARE(types.size(), 19);
    QCOMPARE(types.value(QStringLiteral("pes")).toInt(), 2);
    QCOMPARE(types.value(QStringLiteral("exp+")).toInt(), 1);
    QCOMPARE(types.value(QStringLiteral("dst")).toInt(), 0);
}

void tst_Metrics::oddServers_data()
{
    QTest::addColumn<HttpServer::Response>("response");
    HttpServer::Response silent;
    silent.silent = true;
    QTest::newRow("silent") << silent;
    HttpServer::Response late;
    late.delayMs = 60'000;
    QTest::newRow("late") << late;
    HttpServer::Response garbage;
    garbage.raw = QByteArray("\x00\xff\x01 what?\n\n", 12);
    QTest::newRow("garbage") << garbage;
    HttpServer::Response error;
    error.status = 500;
    QTest::newRow("error") << error;
    HttpServer::Response redirect;
    redirect.status = 302;
    redirect.headers = {{"Location", "file:///etc/passwd"}};
    QTest::newRow("redirect") << redirect;
    HttpServer::Response huge;
    huge.filler = HugeBody;
    QTest::newRow("100 MB") << huge;
}

// Quitting waits for two seconds at most, whatever the server does.
void tst_Metrics::oddServers()
{
    QFETCH(HttpServer::Response, response);
    serve([response](const HttpServer::Request &) { return response; });
    agree();
    Metrics::createInstance(QStringLiteral("1"));
    Metrics::instance()->initNetworkAccessManager();
    Metrics::submitEvent(QStringLiteral("e"), {});
    QTRY_VERIFY(!m_server->requests().isEmpty());
    QElapsedTimer timer;
    timer.start();
    GlobalTracking::aboutToQuit();
    Metrics::deleteInstance();
    QVERIFY(timer.elapsed() < 10'000);
    QVERIFY(m_server->requests().size() >= 2);
}

void tst_Metrics::badCertificateIsAccepted()
{
    serve(&fine, true);
    agree();
    Metrics::createInstance(QStringLiteral("1"));
    Metrics::instance()->initNetworkAccessManager();
    Metrics::submitEvent(QStringLiteral("e"), {});
    QTRY_COMPARE(events(), QStringList(QStringLiteral("e")));
}

void tst_Metrics::links()
{
    agree();
    const QString plain = QStringLiteral("https://a.example/b");
    const QString query = plain + QStringLiteral("?c=d");
    Metrics::createInstance(QStringLiteral("1"));
    const Metrics *metrics = Metrics::instance();
    QCOMPARE(metrics->decorateLink(plain), plain + QStringLiteral("?_zq=") + metrics->id());
    QCOMPARE(metrics->decorateLink(query), query + QStringLiteral("&_zq=") + metrics->id());
    Metrics::instance()->setDoNotTrack(true);
    QCOMPARE(metrics->decorateLink(query), query);
}

void tst_Metrics::withoutAnInstance()
{
    Metrics::submitEvent(QStringLiteral("e"), {{QStringLiteral("k"), 1}});
    Metrics::submitProperty(QStringLiteral("k"), 1);
    GlobalTracking::applicationStarted();
    GlobalTracking::aboutToQuit();
    QCOMPARE(m_server->connections(), 0);
}

void tst_Metrics::agreementText()
{
    Metrics::createInstance(QStringLiteral("1"));
    QVERIFY(!Metrics::instance()->hasTrackingAgreement());
    QVERIFY(Metrics::instance()->trackingAgreementText(true).isEmpty());
    QVERIFY(!Metrics::instance()->trackingAgreementPresented());
    Metrics::instance()->setTrackingAgreementPresented();
    QVERIFY(Metrics::instance()->trackingAgreementPresented());
}

QTEST_MAIN(tst_Metrics)
#include "tst_metrics.moc"
