#include "online/MakersServer.h"
#include "online/UpdateDialog.h"
#include "online/WindowsUpdater.h"
#include "support/MessageBoxes.h"
#include "widgets/controls/GMessageBox.h"

#include <memory>
#include <QApplication>
#include <QDesktopServices>
#include <QFutureWatcher>
#include <QInputDialog>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
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

HttpServer::Response feed(const QByteArray &items)
{
    return HttpServer::text("<?xml version=\"1.0\" encoding=\"utf-8\"?><rss version=\"2.0\" "
                            "xmlns:sparkle=\"http://s.example\" xmlns:tnw=\"http://t.example\">"
                            "<channel><title>C</title>" +
                            items + "</channel></rss>");
}

HttpServer::Response unauthorised()
{
    HttpServer::Response response;
    response.status = 401;
    response.headers = {{"WWW-Authenticate", "Basic realm=\"Type your password\""}};
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

void press(const char *button)
{
    QTest::mouseClick(offered()->findChild<QPushButton *>(QString::fromLatin1(button)),
                      Qt::LeftButton);
    QTRY_VERIFY(!offered());
}

} // namespace

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
    void request();
    void answers_data();
    void answers();
    void troubleIsExplained_data();
    void troubleIsExplained();
    void severalClicksHaveOneAnswer();
    void badCertificate();
    void lateAnswerDoesNotHoldUpTheEnd();
    void install();
    void insecureDownload();
    void skip();
    void remindLater();
    void feedTextIsShownAsItIs();
    void waitsForTheUser();
    void stagingLogin();

private:
    void check(bool interactive = false);
    void answer(const HttpServer::Response &response, bool interactive = false);

    std::unique_ptr<MakersServer> m_maker;
    std::unique_ptr<WindowsUpdater> m_updater;
    QList<QUrl> m_opened;
};

void tst_Updater::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.1.4"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Hoopline Organizer"));
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open");
}

void tst_Updater::init()
{
    m_opened.clear();
    m_maker = std::make_unique<MakersServer>(feed(item("2.0.0")));
    m_updater = std::make_unique<WindowsUpdater>();
}

void tst_Updater::cleanup()
{
    m_updater.reset();
    m_maker.reset();
}

// Lets the server answer and the answer be digested.
void tst_Updater::check(bool interactive)
{
    QSignalSpy finished(m_updater->findChild<QNetworkAccessManager *>(),
                        &QNetworkAccessManager::finished);
    if (interactive)
        m_updater->checkForUpdatesMenuItem();
    else
        m_updater->checkForUpdates();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 30'000);
    QTRY_VERIFY(!m_updater->findChild<QFutureWatcherBase *>());
}

void tst_Updater::answer(const HttpServer::Response &response, bool interactive)
{
    m_maker->answer(response);
    check(interactive);
}

void tst_Updater::request()
{
    m_updater->setBetaUpdatesEnabled(true);
    QTest::qWait(50);
    QCOMPARE(m_maker->server().connections(), 0);
    check();
    const HttpServer::Request request = m_maker->server().requests().first();
    QCOMPARE(request.method, QByteArray("POST"));
    QVERIFY(
        request.target.startsWith("/releases/hooplineorganizer/updatecheck.php?v=1.1.4&b=yes&o="));
    QCOMPARE(request.headers.value("content-type"), QByteArray("text/xml"));
    QVERIFY(request.body.isEmpty());
    QVERIFY(offered());
}

void tst_Updater::answers_data()
{
    QTest::addColumn<HttpServer::Response>("response");
    QTest::addColumn<QString>("told");
    const QString noXml = QStringLiteral("(No XML)");
    const auto odd = HttpServer::oddAnswers();
    for (auto answer = odd.begin(); answer != odd.end(); ++answer)
        QTest::newRow(answer.key().constData()) << answer.value() << noXml;
    QTest::newRow("only staging may ask") << unauthorised() << noXml;
    const auto add = [](const char *name, const QByteArray &body, const QString &told) {
        QTest::newRow(name) << HttpServer::text(body) << told;
    };
    add("empty", "", noXml);
    add("deeply nested", QByteArray("<a>").repeated(1'000'000), noXml);
    QByteArray attributes;
    for (int i = 0; i < 60'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    add("sixty thousand attributes", "<rss" + attributes + "/>", noXml);
    add("growing text", "<!DOCTYPE r [<!ENTITY a \"bbbb\">]><rss>&a;</rss>", noXml);
    add("page of a proxy", "<html><body>Sign in</body></html>", QStringLiteral("(Not RSS)"));
    add("no channel", "<rss/>", QStringLiteral("(No channel found)"));

    const auto addFeed = [](const char *name, const QByteArray &items) {
        QTest::newRow(name) << feed(items) << QStringLiteral("available for Hoopline Organizer");
    };
    addFeed("the same", item("1.1.4"));
    addFeed("older", item("1.1.3") + item("1.0.9"));
    addFeed("none", "");
    addFeed("no enclosure", "<item><title>T</title></item>");
    addFeed("no version", item(""));
    addFeed("no number", item("latest"));
    addFeed("endless version", item(QByteArray("9").repeated(10'000)));
}

// What offers nothing is told only to those who asked.
void tst_Updater::answers()
{
    QFETCH(HttpServer::Response, response);
    QFETCH(QString, told);
    const QString title = told.startsWith('(') ? "Update check failed|Can't read app cast feed. "
                                               : "No new updates available|";
    const MessageBoxes boxes;
    answer(response);
    QCOMPARE(boxes.count(), 0);
    answer(response, true);
    QTRY_COMPARE(boxes.count(), 1);
    QVERIFY2(boxes.allTexts().contains(title), qPrintable(boxes.allTexts()));
    QVERIFY2(boxes.allTexts().endsWith(told), qPrintable(boxes.allTexts()));
    QVERIFY(!offered());
}

void tst_Updater::troubleIsExplained_data()
{
    QTest::addColumn<HttpServer::Response>("response");
    QTest::addColumn<QString>("explanation");
    const auto add = [](const char *name, const HttpServer::Response &response,
                        const QString &explanation) {
        QTest::newRow(name) << response << explanation;
    };
    add("moved", HttpServer::redirect("https://moved.example/feed?v=1"),
        QStringLiteral("The address has moved:\nhttps://moved.example/feed"));
    HttpServer::Response failed = HttpServer::text("oops");
    failed.status = 500;
    add("error", failed, QStringLiteral("The server reports an error."));
    add("no feed", HttpServer::text("hello"), QStringLiteral("The answer cannot be used."));
}

// In the user's words, with an address to copy that holds nothing about him.
void tst_Updater::troubleIsExplained()
{
    QFETCH(HttpServer::Response, response);
    QFETCH(QString, explanation);
    QString told;
    QTimer hand;
    connect(&hand, &QTimer::timeout, this, [&told] {
        if (auto *box = qobject_cast<GMessageBox *>(QApplication::activeModalWidget())) {
            told = box->explanation();
            box->close();
        }
    });
    hand.start(0);
    answer(response, true);
    QTRY_VERIFY2(told.startsWith(explanation), qPrintable(told));
    QVERIFY(!told.contains('?'));
    QVERIFY(told.section('\n', 1).startsWith(QLatin1String("http")));
}

void tst_Updater::severalClicksHaveOneAnswer()
{
    const MessageBoxes boxes;
    m_maker->answer(HttpServer::text("hello"));
    m_updater->checkForUpdatesMenuItem();
    check(true);
    QTRY_COMPARE(boxes.count(), 1);
    QCOMPARE(m_maker->server().requests().size(), 1);
}

void tst_Updater::badCertificate()
{
    m_maker->answer(feed(item("2.0.0")), true);
    check();
    QCOMPARE(m_maker->server().connections(), 1);
    QVERIFY(m_maker->server().requests().isEmpty());
    QVERIFY(!offered());
}

// The loop turns once more after the end, for the metrics.
void tst_Updater::lateAnswerDoesNotHoldUpTheEnd()
{
    m_maker->serve([](const HttpServer::Request &) {
        QCoreApplication::quit();
        return HttpServer::text("garbage");
    });
    QTimer::singleShot(0, m_updater.get(), [this] { m_updater->checkForUpdatesMenuItem(); });
    QCoreApplication::exec();
    const MessageBoxes boxes;
    QTest::qWait(100);
    QCOMPARE(boxes.count(), 0);
}

void tst_Updater::install()
{
    // The highest version, wherever it stands.
    answer(feed(item("1.1.0") + item("1.2.0") + item("1.1.5", "https://get.example/other")));
    press("install");
    QCOMPARE(m_opened, QList<QUrl>{QUrl(QString::fromLatin1(Download))});
    QVERIFY(GSettings().updaterSkippedVersions().isEmpty());
}

void tst_Updater::insecureDownload()
{
    for (const char *url : {"http://get.example/new.deb", "file:///bin/sh", "javascript:alert(1)",
                            "https:///x", ""}) {
        answer(feed(item("2.0.0", url)));
        auto *button = offered()->findChild<QPushButton *>(QStringLiteral("install"));
        QVERIFY2(!button->isEnabled(), url);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(m_opened.isEmpty());
        // What the user does in haste decides nothing.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(!offered());
        QVERIFY(GSettings().updaterSkippedVersions().isEmpty());
    }
}

void tst_Updater::skip()
{
    check();
    press("skip");
    QCOMPARE(GSettings().updaterSkippedVersions(), QStringList(QStringLiteral("2.0.0")));
    check();
    QVERIFY(!offered());
    check(true);
    QVERIFY(offered());
    answer(feed(item("2.0.1")));
    QVERIFY(offered());
    QVERIFY(m_opened.isEmpty());
}

void tst_Updater::remindLater()
{
    const auto keys = [this] {
        return QSettings(m_maker->profile().filePath(QStringLiteral("settings.ini")),
                         QSettings::IniFormat)
            .allKeys();
    };
    const QStringList before = keys();
    check();
    press("later");
    check();
    QTest::keyClick(offered(), Qt::Key_Escape);
    QCOMPARE(keys(), before);
    QVERIFY(m_opened.isEmpty());
}

void tst_Updater::feedTextIsShownAsItIs()
{
    answer(feed(item("2.0 &lt;img src='x'&gt;")));
    bool shown = false;
    for (const QLabel *label : offered()->findChildren<QLabel *>()) {
        const bool here = label->text().contains(QStringLiteral("<img"));
        shown = shown || here;
        QVERIFY(!here || label->textFormat() == Qt::PlainText);
    }
    QVERIFY(shown);
    const auto *notes = offered()->findChild<QLabel *>(QStringLiteral("releaseNotes"));
    QVERIFY(
        notes->text().contains(QStringLiteral("href=\"https://get.example/notes?a=1&amp;b=2\"")));
}

// An offer that belonged to the dialog of a scan would go with it.
void tst_Updater::waitsForTheUser()
{
    QMainWindow window;
    window.show();
    auto busy = std::make_unique<QDialog>(&window);
    busy->open();
    check();
    QTest::qWait(50);
    QVERIFY(!offered());
    busy.reset();
    QTRY_VERIFY(offered());
    QCOMPARE(offered()->parentWidget(), &window);
}

void tst_Updater::stagingLogin()
{
    GSettings().setUseStagingServer(true);
    m_maker->serve([](const HttpServer::Request &request) {
        const QByteArray good = "Basic " + QByteArray("jo:good").toBase64();
        return request.headers.value("authorization") == good ? feed(item("2.0.0"))
                                                              : unauthorised();
    });
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
    check();
    QTRY_VERIFY(offered());
    const QString user = QStringLiteral("Staging server|Username:");
    const QString password = QStringLiteral("Staging server|Password:");
    QCOMPARE(asked, (QStringList{user, password, user, password}));

    // What is stored is offered without a question.
    delete offered();
    m_updater = std::make_unique<WindowsUpdater>();
    check();
    QTRY_VERIFY(offered());
    QCOMPARE(asked.size(), 4);
}

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
