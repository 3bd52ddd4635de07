#include "online/MakersServer.h"
#include "online/UpdateDialog.h"
#include "online/WindowsUpdater.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "widgets/controls/GMessageBox.h"

#include <memory>
#include <QtTest>
#include <QtWidgets>

const QByteArray Download = "https://get.example/new.deb";

static QByteArray item(const QByteArray &version, const QByteArray &url = Download)
{
    return "<item><title>T</title><sparkle:releaseNotesLink> https://get.example/notes?a=1&amp;b=2 "
           "</sparkle:releaseNotesLink><tnw:releaseDate>2026-01-02</tnw:releaseDate>"
           "<enclosure url=\"" +
           url + "\" sparkle:version=\"" + version + "\"/></item>";
}

static HttpServer::Response feed(const QByteArray &items)
{
    return HttpServer::text("<?xml version=\"1.0\" encoding=\"utf-8\"?><rss version=\"2.0\" "
                            "xmlns:sparkle=\"http://s.example\" xmlns:tnw=\"http://t.example\">"
                            "<channel><title>C</title>" +
                            items + "</channel></rss>");
}

static HttpServer::Response unauthorised()
{
    HttpServer::Response response;
    response.status = 401;
    response.headers = {{"WWW-Authenticate", "Basic realm=\"Type your password\""}};
    return response;
}

static UpdateDialog *offered()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<UpdateDialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

static void press(const char *button)
{
    QTest::mouseClick(offered()->findChild<QPushButton *>(QString::fromLatin1(button)),
                      Qt::LeftButton);
    QTRY_VERIFY(!offered());
}

/** The update check against a real server, well-behaved and not. */
class tst_Updater : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &url) { m_opened.append(url); }

private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        QCoreApplication::setApplicationVersion("1.1.4");
        QGuiApplication::setApplicationDisplayName("Hoopline Organizer");
        QDesktopServices::setUrlHandler("https", this, "open");
        QDesktopServices::setUrlHandler("http", this, "open");
    }

    void init()
    {
        m_opened.clear();
        m_maker = std::make_unique<MakersServer>(feed(item("2.0.0")));
        m_updater = std::make_unique<WindowsUpdater>();
    }

    void cleanup()
    {
        m_updater.reset();
        m_maker.reset();
    }

    void request()
    {
        m_updater->setBetaUpdatesEnabled(true);
        QTest::qWait(50);
        QCOMPARE(m_maker->server().connections(), 0);
        check();
        const HttpServer::Request request = m_maker->server().requests().first();
        QCOMPARE(request.method, "POST");
        QVERIFY(request.target.startsWith(
            "/releases/hooplineorganizer/updatecheck.php?v=1.1.4&b=yes&o="));
        QCOMPARE(request.headers.value("content-type"), "text/xml");
        QVERIFY(request.body.isEmpty());
        QVERIFY(offered());
    }

    void answers_data()
    {
        const Rows<HttpServer::Response, QString> row("response", "told");
        const QString noXml = "(No XML)";
        const auto odd = HttpServer::oddAnswers();
        for (auto answer = odd.begin(); answer != odd.end(); ++answer)
            row(answer.key(), answer.value(), noXml);
        row("only staging may ask", unauthorised(), noXml);
        const auto text = &HttpServer::text;
        row("empty", text(""), noXml);
        row("deeply nested", text(QByteArray("<a>").repeated(1'000'000)), noXml);
        QByteArray attributes;
        for (int i = 0; i < 60'000; ++i)
            attributes += " a" + QByteArray::number(i) + "=''";
        row("sixty thousand attributes", text("<rss" + attributes + "/>"), noXml);
        row("growing text", text("<!DOCTYPE r [<!ENTITY a \"bbbb\">]><rss>&a;</rss>"), noXml);
        row("page of a proxy", text("<html><body>Sign in</body></html>"), "(Not RSS)");
        row("no channel", text("<rss/>"), "(No channel found)");
        const QString none = "available for Hoopline Organizer";
        row("the same", feed(item("1.1.4")), none);
        row("older", feed(item("1.1.3") + item("1.0.9")), none);
        row("none", feed(""), none);
        row("no enclosure", feed("<item><title>T</title></item>"), none);
        row("no version", feed(item("")), none);
        row("no number", feed(item("latest")), none);
        row("endless version", feed(item(QByteArray("9").repeated(10'000))), none);
    }

    // What offers nothing is told only to those who asked.
    void answers()
    {
        QFETCH(HttpServer::Response, response);
        QFETCH(QString, told);
        const QString title = told.startsWith('(')
                                  ? "Update check failed|Can't read app cast feed. "
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

    void troubleIsExplained_data()
    {
        const Rows<HttpServer::Response, QString> row("response", "explanation");
        row("moved", HttpServer::redirect("https://moved.example/feed?v=1"),
            "The address has moved:\nhttps://moved.example/feed");
        HttpServer::Response failed = HttpServer::text("oops");
        failed.status = 500;
        row("error", failed, "The server reports an error.");
        row("no feed", HttpServer::text("hello"), "The answer cannot be used.");
    }

    // In the user's words, with an address to copy that holds nothing about him.
    void troubleIsExplained()
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

    void severalClicksHaveOneAnswer()
    {
        const MessageBoxes boxes;
        m_maker->answer(HttpServer::text("hello"));
        m_updater->checkForUpdatesMenuItem();
        check(true);
        QTRY_COMPARE(boxes.count(), 1);
        QCOMPARE(m_maker->server().requests().size(), 1);
    }

    void badCertificate()
    {
        m_maker->answer(feed(item("2.0.0")), true);
        check();
        QCOMPARE(m_maker->server().connections(), 1);
        QVERIFY(m_maker->server().requests().isEmpty());
        QVERIFY(!offered());
    }

    // The loop turns once more after the end, for the metrics.
    void lateAnswerDoesNotHoldUpTheEnd()
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

    void install()
    {
        // The highest version, wherever it stands.
        answer(feed(item("1.1.0") + item("1.2.0") + item("1.1.5", "https://get.example/other")));
        press("install");
        QCOMPARE(m_opened, QList<QUrl>{QUrl(QString::fromLatin1(Download))});
        QVERIFY(GSettings().updaterSkippedVersions().isEmpty());
    }

    void insecureDownload()
    {
        for (const char *url : {"http://get.example/new.deb", "file:///bin/sh",
                                "javascript:alert(1)", "https:///x", ""}) {
            answer(feed(item("2.0.0", url)));
            auto *button = offered()->findChild<QPushButton *>("install");
            QVERIFY2(!button->isEnabled(), url);
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(m_opened.isEmpty());
            // What the user does in haste decides nothing.
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QTRY_VERIFY(!offered());
            QVERIFY(GSettings().updaterSkippedVersions().isEmpty());
        }
    }

    void skip()
    {
        check();
        press("skip");
        QCOMPARE(GSettings().updaterSkippedVersions(), QStringList("2.0.0"));
        check();
        QVERIFY(!offered());
        check(true);
        QVERIFY(offered());
        answer(feed(item("2.0.1")));
        QVERIFY(offered());
        QVERIFY(m_opened.isEmpty());
    }

    void remindLater()
    {
        const auto keys = [this] {
            return QSettings(m_maker->profile().filePath("settings.ini"), QSettings::IniFormat)
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

    void feedTextIsShownAsItIs()
    {
        answer(feed(item("2.0 &lt;img src='x'&gt;")));
        bool shown = false;
        for (const QLabel *label : offered()->findChildren<QLabel *>()) {
            const bool here = label->text().contains("<img");
            shown = shown || here;
            QVERIFY(!here || label->textFormat() == Qt::PlainText);
        }
        QVERIFY(shown);
        const auto *notes = offered()->findChild<QLabel *>("releaseNotes");
        QVERIFY(notes->text().contains("href=\"https://get.example/notes?a=1&amp;b=2\""));
    }

    // An offer that belonged to the dialog of a scan would go with it.
    void waitsForTheUser()
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

    void stagingLogin()
    {
        GSettings().setUseStagingServer(true);
        m_maker->serve([](const HttpServer::Request &request) {
            const QByteArray good = "Basic " + QByteArray("jo:good").toBase64();
            return request.headers.value("authorization") == good ? feed(item("2.0.0"))
                                                                  : unauthorised();
        });
        QStringList answers{"jo", "bad", "jo", "good"};
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
        const QString user = "Staging server|Username:";
        const QString password = "Staging server|Password:";
        QCOMPARE(asked, (QStringList{user, password, user, password}));

        // What is stored is offered without a question.
        delete offered();
        m_updater = std::make_unique<WindowsUpdater>();
        check();
        QTRY_VERIFY(offered());
        QCOMPARE(asked.size(), 4);
    }

private:
    // Lets the server answer and the answer be digested.
    void check(bool interactive = false)
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

    void answer(const HttpServer::Response &response, bool interactive = false)
    {
        m_maker->answer(response);
        check(interactive);
    }

    std::unique_ptr<MakersServer> m_maker;
    std::unique_ptr<WindowsUpdater> m_updater;
    QList<QUrl> m_opened;
};

QTEST_MAIN(tst_Updater)
#include "tst_updater.moc"
