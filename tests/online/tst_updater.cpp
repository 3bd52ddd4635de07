#include "app/base/GSettings.h"
#include "online/HttpServer.h"
#include "online/LocalProvider.h"
#include "online/ModalBoxes.h"
#include "online/UpdateDialog.h"
#include "online/WindowsUpdater.h"

#include <memory>
#include <QApplication>
#include <QDesktopServices>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray Download = "https://get.example/new.deb";

QByteArray item(const QByteArray &version, const QByteArray &url = Download)
{
    return "<item><title>T</title><sparkle:releaseNotesLink> https://get.example/notes?a=1&amp;b=2 "
           "</sparkle:releaseNotesLink><tnw:releaseDate>2026-01-02</tnw:releaseDate>"
           "<enclosure url=\"" +
           url + "\" sparkle:version=\"" + version + "\"/></item>";
}

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><rss version=\"2.0\" "
           "xmlns:sparkle=\"http://s.example\" xmlns:tnw=\"http://t.example\"><channel>"
           "<title>C</title>" +
           items + "</channel></rss>";
}

HttpServer::Response body(const QByteArray &text)
{
    HttpServer::Response response;
    response.body = text;
    return response;
}

UpdateDialog *offered()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<UpdateDialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(HttpServer::Response)

/** The update check against a real server, well-behaved and not. */
class tst_Updater : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened.append(url); }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingIsSentBeforeTheCheck();
    void request();
    void feeds_data();
    void feeds();
    void oddAnswers_data();
    void oddAnswers();
    void oddAnswersInTheBackground_data() { oddAnswers_data(); }
    void oddAnswersInTheBackground();
    void badCertificate();
    void silentServerDelaysNothing();
    void queryOnly();
    void install();
    void insecureDownload_data();
    void insecureDownload();
    void skip();
    void remindLater();
    void feedTextIsShownAsItIs();
    void stagingLogin();
    void onlyStagingMayAsk();
    void settings();

private:
    void serve(HttpServer::Handler handler, bool tls = false);
    void answer(const HttpServer::Response &response, bool interactive);
    UpdateDialog *offer(const QByteArray &version, const QByteArray &url = Download);

    QTemporaryDir m_dir;
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<GApplicationAddons> m_addons;
    std::unique_ptr<WindowsUpdater> m_updater;
    QList<QUrl> m_opened;
};

void tst_Updater::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.1.4"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Hoopline Organizer"));
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("s.ini")));
    LocalProvider::install();
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open");
}

void tst_Updater::init()
{
    GSettings().flushSettings({});
    m_opened.clear();
    m_addons = std::make_unique<GApplicationAddons>(true, QStringLiteral("Hoopline Organizer"),
                                                    QStringLiteral("hl"));
    m_updater = std::make_unique<WindowsUpdater>();
    serve([](const HttpServer::Request &) { return body(feed(item("2.0.0"))); });
}

void tst_Updater::cleanup()
{
    m_updater.reset();
    m_addons.reset();
}

void tst_Updater::serve(HttpServer::Handler handler, bool tls)
{
    m_server = std::make_unique<HttpServer>(std::move(handler), tls);
    LocalProvider::base = m_server->url(QString()).toString();
}

// Lets the server answer and the answer be digested.
void tst_Updater::answer(const HttpServer::Response &response, bool interactive)
{
    serve([response](const HttpServer::Request &) { return response; });
    auto *manager = m_updater->findChild<QNetworkAccessManager *>();
    QSignalSpy finished(manager, &QNetworkAccessManager::finished);
    if (interactive)
        m_updater->checkForUpdatesMenuItem();
    else
        m_updater->checkForUpdates();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30'000);
}

UpdateDialog *tst_Updater::offer(const QByteArray &version, const QByteArray &url)
{
    answer(body(feed(item(version, url))), false);
    return offered();
}

void tst_Updater::nothingIsSentBeforeTheCheck()
{
    QTest::qWait(200);
    QCOMPARE(m_server->connections(), 0);
    QCOMPARE(theAutoUpdater(), m_updater.get());
}

void tst_Updater::request()
{
    m_updater->checkForUpdates();
    QTRY_COMPARE(m_server->requests().size(), 1);
    const HttpServer::Request request = m_server->requests().first();
    QCOMPARE(request.method, QByteArray("POST"));
    QVERIFY(
        request.target.startsWith("/releases/hooplineorganizer/updatecheck.php?v=1.1.4&b=no&o="));
    QCOMPARE(request.headers.value("content-type"), QByteArray("text/xml"));
    QVERIFY(request.body.isEmpty());
    QTRY_VERIFY(offered());
}

void tst_Updater::feeds_data()
{
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<bool>("offers");
    QTest::newRow("newer") << item("1.1.5") << true;
    QTest::newRow("the same") << item("1.1.4") << false;
    QTest::newRow("older") << item("1.1.3") + item("1.0.9") << false;
    QTest::newRow("any order") << item("1.1.0") + item("1.2.0") + item("1.1.5") << true;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("no enclosure") << QByteArray("<item><title>T</title></item>") << false;
    QTest::newRow("no version") << item("") << false;
    QTest::newRow("no number") << item("latest") << false;
    QTest::newRow("endless version") << item(QByteArray("9").repeated(10'000)) << false;
}

void tst_Updater::feeds()
{
    QFETCH(QByteArray, items);
    QFETCH(bool, offers);
    answer(body(feed(items)), false);
    QCOMPARE(offered() != nullptr, offers);

    ModalBoxes boxes;
    answer(body(feed(items)), true);
    QCOMPARE(offered() != nullptr, offers);
    const QString none = QStringLiteral("No new updates available|There are no new updates "
                                        "available for Hoopline Organizer");
    QTRY_VERIFY(offers ? boxes.texts.isEmpty() : boxes.texts.value(0).endsWith(none));
}

void tst_Updater::oddAnswers_data()
{
    QTest::addColumn<HttpServer::Response>("response");
    QTest::addColumn<QString>("reason");
    const QString noXml = QStringLiteral("(No XML)");
    const QString notRss = QStringLiteral("(Not RSS)");
    QTest::newRow("empty") << body("") << noXml;
    QTest::newRow("garbage") << body("\xff\xfe\x01 what?") << noXml;
    QTest::newRow("page of a proxy") << body("<html><body>Sign in</body></html>") << notRss;
    QTest::newRow("no channel") << body("<rss/>") << QStringLiteral("(No channel found)");
    QTest::newRow("deeply nested") << body(QByteArray("<a>").repeated(1'000'000)) << noXml;
    QTest::newRow("growing text") << body("<!DOCTYPE r [<!ENTITY a \"bbbb\">]><rss>&a;</rss>")
                                  << noXml;
    HttpServer::Response response;
    response.raw = "this is no HTTP at all";
    QTest::newRow("no HTTP") << response << noXml;
    response = body(feed(item("2.0.0")));
    response.status = 500;
    QTest::newRow("error status") << response << noXml;
    response.status = 302;
    response.headers = {{"Location", "file:///etc/passwd"}};
    response.body.clear();
    QTest::newRow("redirect to a file") << response << noXml;
    response = body(feed(item("2.0.0")));
    response.filler = 100 * 1024 * 1024;
    QTest::newRow("100 MB") << response << noXml;
}

void tst_Updater::oddAnswers()
{
    QFETCH(HttpServer::Response, response);
    QFETCH(QString, reason);
    ModalBoxes boxes;
    answer(response, true);
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY2(boxes.texts.first().endsWith(
                 QStringLiteral("Update check failed|Can't read app cast feed. ") + reason),
             qPrintable(boxes.texts.first()));
    QVERIFY(!offered());
}

void tst_Updater::oddAnswersInTheBackground()
{
    QFETCH(HttpServer::Response, response);
    ModalBoxes boxes;
    answer(response, false);
    QTest::qWait(30);
    QVERIFY(boxes.texts.isEmpty());
    QVERIFY(!offered());
}

void tst_Updater::badCertificate()
{
    ModalBoxes boxes;
    serve([](const HttpServer::Request &) { return body(feed(item("2.0.0"))); }, true);
    m_updater->checkForUpdatesMenuItem();
    QTRY_COMPARE(boxes.texts.size(), 1);
    QCOMPARE(m_server->connections(), 1);
    QVERIFY(m_server->requests().isEmpty());
    QVERIFY(!offered());
}

void tst_Updater::silentServerDelaysNothing()
{
    HttpServer::Response silent;
    silent.silent = true;
    serve([silent](const HttpServer::Request &) { return silent; });
    QElapsedTimer timer;
    timer.start();
    m_updater->checkForUpdatesMenuItem();
    QTRY_COMPARE(m_server->requests().size(), 1);
    m_updater.reset();
    QVERIFY(timer.elapsed() < 10'000);
}

void tst_Updater::queryOnly()
{
    m_updater->setAutoUpdates(false);
    m_updater->queryOnly();
    QTest::qWait(50);
    QCOMPARE(m_server->connections(), 0);
    m_updater->setAutoUpdates(true);
    m_updater->queryOnly();
    m_updater->queryOnly();
    QTRY_COMPARE(m_server->requests().size(), 1);
    QTest::qWait(50);
    QCOMPARE(m_server->requests().size(), 1);
    QVERIFY(!offered());
}

void tst_Updater::install()
{
    UpdateDialog *dialog = offer("2.0.0");
    QVERIFY(dialog);
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("install")), Qt::LeftButton);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(QString::fromLatin1(Download))});
    QVERIFY(GSettings().updaterSkippedVersions().isEmpty());
    QTRY_VERIFY(!offered());
}

void tst_Updater::insecureDownload_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("http") << QByteArray("http://get.example/new.deb");
    QTest::newRow("file") << QByteArray("file:///bin/sh");
    QTest::newRow("script") << QByteArray("javascript:alert(1)");
    QTest::newRow("no host") << QByteArray("https:///x");
    QTest::newRow("none") << QByteArray();
}

void tst_Updater::insecureDownload()
{
    QFETCH(QByteArray, url);
    UpdateDialog *dialog = offer("2.0.0", url);
    QVERIFY(dialog);
    auto *button = dialog->findChild<QPushButton *>(QStringLiteral("install"));
    QVERIFY(!button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(m_opened.isEmpty());
}

void tst_Updater::skip()
{
    UpdateDialog *dialog = offer("2.0.0");
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("skip")), Qt::LeftButton);
    QCOMPARE(GSettings().updaterSkippedVersions(), QStringList(QStringLiteral("2.0.0")));
    QTRY_VERIFY(!offered());
    QVERIFY(!offer("2.0.0"));
    answer(body(feed(item("2.0.0"))), true);
    QVERIFY(offered());
    QVERIFY(offer("2.0.1"));
    QVERIFY(m_opened.isEmpty());
}

void tst_Updater::remindLater()
{
    const QStringList keys = QSettings(m_dir.filePath("s.ini"), QSettings::IniFormat).allKeys();
    UpdateDialog *dialog = offer("2.0.0");
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("later")), Qt::LeftButton);
    QTRY_VERIFY(!offered());
    dialog = offer("2.0.0");
    QVERIFY(dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCOMPARE(QSettings(m_dir.filePath("s.ini"), QSettings::IniFormat).allKeys(), keys);
    QVERIFY(m_opened.isEmpty());
}

void tst_Updater::feedTextIsShownAsItIs()
{
    UpdateDialog *dialog = offer("2.0 &lt;img src='x'&gt;");
    QVERIFY(dialog);
    bool shown = false;
    for (const QLabel *label : dialog->findChildren<QLabel *>()) {
        shown = shown || label->text().contains(QStringLiteral("<img"));
        if (label->text().contains(QStringLiteral("<img")))
            QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QVERIFY(shown);
    auto *notes = dialog->findChild<QLabel *>(QStringLiteral("releaseNotes"));
    QVERIFY(
        notes->text().contains(QStringLiteral("href=\"https://get.example/notes?a=1&amp;b=2\"")));
}

void tst_Updater::stagingLogin()
{
    const auto handler = [](const HttpServer::Request &request) {
        if (request.headers.value("authorization") == "Basic " + QByteArray("jo:good").toBase64())
            return body(feed(item("2.0.0")));
        HttpServer::Response response;
        response.status = 401;
        response.headers = {{"WWW-Authenticate", "Basic realm=\"staging\""}};
        return response;
    };
    GSettings().setUseStagingServer(true);
    serve(handler);
    QStringList answers{QStringLiteral("jo"), QStringLiteral("bad"), QStringLiteral("jo"),
                        QStringLiteral("good")};
    QStringList asked;
    QTimer typist;
    connect(&typist, &QTimer::timeout, this, [&answers, &asked] {
        auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        if (!dialog || answers.isEmpty())
            return;
        asked.append(dialog->windowTitle() + QLatin1Char('|') + dialog->labelText());
        dialog->setTextValue(answers.takeFirst());
        dialog->accept();
    });
    typist.start(10);
    m_updater->checkForUpdates();
    QTRY_VERIFY(offered());
    const QString user = QStringLiteral("Staging server|Username:");
    const QString password = QStringLiteral("Staging server|Password:");
    QCOMPARE(asked, (QStringList{user, password, user, password}));
    QCOMPARE(GSettings().stagingPassword(), QStringLiteral("good"));

    // What is stored is offered without a question.
    delete offered();
    m_updater = std::make_unique<WindowsUpdater>();
    m_updater->checkForUpdates();
    QTRY_VERIFY(offered());
    QCOMPARE(asked.size(), 4);
}

void tst_Updater::onlyStagingMayAsk()
{
    HttpServer::Response response;
    response.status = 401;
    response.headers = {{"WWW-Authenticate", "Basic realm=\"Type your password\""}};
    answer(response, false);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!GSettings().contains(QStringLiteral("stagingUser")));
}

void tst_Updater::settings()
{
    QVERIFY(m_updater->autoUpdatesEnabled());
    m_updater->setAutoUpdates(false);
    QVERIFY(!GSettings().autoUpdatesEnabled());
    QVERIFY(!m_updater->betaUpdatesEnabled());
    m_updater->setBetaUpdatesEnabled(true);
    QVERIFY(m_updater->getUpdateUrl().query().contains(QStringLiteral("b=yes")));
}

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
