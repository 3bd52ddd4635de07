#include "online/BreakpadCrashHandler.h"
#include "online/FeedbackDialog.h"
#include "online/MakersServer.h"
#include "online/services/SystemInquiry.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"

#include <memory>
#include <QDomDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QtTest>
#include <QtWidgets>

namespace {

const QString Mail = "jo@mail.example";

// Children of an element as "name=text", in order.
QStringList childTexts(const QDomElement &element)
{
    QStringList list;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        list.append(child.tagName() + QLatin1Char('=') + child.text());
    return list;
}

/** A dialog on the screen, and hands for it. */
class Driven : public FeedbackDialog
{
public:
    explicit Driven(int tab = 0) : FeedbackDialog(nullptr), tabs(findChild<QTabWidget *>())
    {
        show();
        tabs->setCurrentIndex(tab);
    }

    QWidget *page() const { return tabs->currentWidget(); }
    QPushButton *send() const { return findChild<QPushButton *>("send"); }
    QCheckBox *includeMail() const { return findChildren<QCheckBox *>().last(); }
    QLineEdit *mail() const { return findChildren<QLineEdit *>().last(); }

    /** Types into every field of the current tab. */
    void fill() const
    {
        for (QLineEdit *edit : page()->findChildren<QLineEdit *>())
            QTest::keyClicks(edit, "topic");
        int number = 0;
        for (QTextEdit *edit : page()->findChildren<QTextEdit *>())
            QTest::keyClicks(edit, QStringLiteral("text%1 <&").arg(++number));
    }

    QTabWidget *tabs;
};

} // namespace

/** The feedback dialog, typed into and sent to a real server. */
class tst_Feedback : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        QCoreApplication::setApplicationName("Hoopline Organizer");
        QCoreApplication::setApplicationVersion("1.1.4");
    }

    void init() { m_maker = std::make_unique<MakersServer>(HttpServer::text("OK\n")); }
    void cleanup() { m_maker.reset(); }

    void tabs_data()
    {
        const Rows<int, QString, QString, QStringList> row("tab", "type", "element", "expected");
        row("Quick Feedback", 0, "feedback", "feedback", {"message=text1 <&"});
        row("Support Question", 1, "question", "support", {"question=text1 <&", "topic=topic"});
        row("Feature Request", 2, "feature", "feature",
            {"request=text1 <&", "urgency=Deal breaker", "topic=topic"});
        row("Bug Report", 3, "bug", "bug",
            {"expected=text1 <&", "reproduce=text2 <&", "critical=yes", "topic=topic"});
    }

    void tabs()
    {
        QFETCH(int, tab);
        QFETCH(QString, type);
        const Driven dialog(tab);
        QCOMPARE(dialog.tabs->count(), 4);
        QCOMPARE(dialog.tabs->tabText(tab), QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(!dialog.send()->isEnabled());
        dialog.fill();
        QVERIFY(dialog.send()->isEnabled());

        // Each field by itself is needed, and blanks do not fill it.
        for (QTextEdit *edit : dialog.page()->findChildren<QTextEdit *>()) {
            const QString text = edit->toPlainText();
            edit->setPlainText(" \n");
            QVERIFY(!dialog.send()->isEnabled());
            edit->setPlainText(text);
        }
        for (QLineEdit *edit : dialog.page()->findChildren<QLineEdit *>()) {
            edit->setText("  ");
            QVERIFY(!dialog.send()->isEnabled());
            edit->setText("topic");
        }
        dialog.tabs->setCurrentIndex(tab == 0 ? 1 : 0);
        QVERIFY(!dialog.send()->isEnabled());
        dialog.tabs->setCurrentIndex(tab);

        for (QComboBox *choice : dialog.page()->findChildren<QComboBox *>())
            choice->setCurrentIndex(2);
        for (QCheckBox *box : dialog.page()->findChildren<QCheckBox *>())
            box->click();
        dialog.includeMail()->click();
        dialog.mail()->setText(Mail);
        QTest::mouseClick(dialog.send(), Qt::LeftButton);
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_maker->server().requests().size(), 1);
        const HttpServer::Request request = m_maker->server().requests().first();
        QCOMPARE(request.method, "POST");
        QVERIFY(request.target.startsWith("/php/feedback.php?p=HooplineOrganizer"));
        QCOMPARE(request.headers.value("content-type"), "text/xml");
        QCOMPARE(sent().tagName(), "feedback");
        QCOMPARE(sent().attribute("version"), "1.0");
        QStringList head = childTexts(sent());
        head.removeLast();
        QCOMPARE(head,
                 (QStringList{"os=" + theSystemInquiry()->osString(), "mail=" + Mail,
                              "appName=Hoopline Organizer", "appVersion=1.1.4", "type=" + type}));
        QTEST(sent().lastChildElement().tagName(), "element");
        QTEST(childTexts(sent().lastChildElement()), "expected");
    }

    void crashForm()
    {
        // Characters that XML cannot hold are left out.
        const QStringList crashLogs{QStringLiteral("log \x01one") + QChar(0xffff), "log two"};
        FeedbackDialog dialog(nullptr, {{"k", 7}}, crashLogs, QString());
        QCOMPARE(dialog.windowTitle(), "Hoopline Organizer crash reporter");
        dialog.show();
        const auto *logs = dialog.findChild<QTextEdit *>("logs");
        QVERIFY(logs->isReadOnly());
        for (const QString &log : crashLogs)
            QVERIFY(logs->toPlainText().contains(log));
        QTest::keyClicks(dialog.findChild<QTextEdit *>("description"), "I sewed");
        QTest::mouseClick(dialog.findChild<QPushButton *>("send"), Qt::LeftButton);
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(childTexts(sent().firstChildElement("additional")),
                 (QStringList{"key=k", "value=7"}));
        QCOMPARE(
            childTexts(sent().firstChildElement("crash")),
            (QStringList{"description=I sewed\n\nOverlayIcons: ", "log=log one", "log=log two"}));
    }

    void mailIsOptional()
    {
        GSettings().setFeedbackMailAddress(Mail);
        Driven dialog;
        QCOMPARE(dialog.mail()->text(), Mail);
        QVERIFY(!dialog.mail()->isEnabled());
        QVERIFY(!dialog.includeMail()->isChecked());
        dialog.includeMail()->click();
        QVERIFY(dialog.mail()->isEnabled());
        dialog.mail()->setText("other@mail.example");
        dialog.includeMail()->click();
        QVERIFY(!dialog.mail()->isEnabled());
        dialog.fill();
        dialog.accept();
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(sent().firstChildElement("mail").text().isEmpty());
        QCOMPARE(GSettings().feedbackMailAddress(), Mail);
    }

    void questionNeedsAnAddress()
    {
        Driven dialog(1);
        dialog.fill();
        const MessageBoxes boxes;
        dialog.accept();
        QTRY_COMPARE(boxes.count(), 1);
        QVERIFY(boxes.allTexts().endsWith(QStringLiteral(
            "Please consider adding your mail address so I can answer your request.")));
        dialog.includeMail()->click();
        dialog.mail()->clear();
        dialog.accept();
        QTRY_COMPARE(boxes.count(), 2);
        QCOMPARE(m_maker->server().connections(), 0);
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.send()->isEnabled());
    }

    void answers_data()
    {
        const Rows<HttpServer::Response, QString, bool, bool> row("response", "told", "closes",
                                                                  "tls");
        const auto odd = HttpServer::oddAnswers();
        for (auto answer = odd.begin(); answer != odd.end(); ++answer)
            row(answer.key(), answer.value(), "", false, false);
        row("bad certificate", HttpServer::text("OK"), "", false, true);
        row("OK", HttpServer::text("OK"), "", true, false);
        row("nothing", HttpServer::text(" \n"), "", true, false);
        row("refusal", HttpServer::text("<b>No</b> thanks"), "<b>No</b> thanks", false, false);
        row("in small letters", HttpServer::text("ok"), "ok", false, false);
        row("endless redirect", HttpServer::redirect("/again"), "", false, false);
    }

    void answers()
    {
        QFETCH(HttpServer::Response, response);
        QFETCH(QString, told);
        QFETCH(bool, closes);
        QFETCH(bool, tls);
        m_maker->answer(response, tls);
        Driven dialog;
        dialog.fill();
        const MessageBoxes boxes;
        dialog.accept();
        QVERIFY(dialog.isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(closes ? !dialog.isVisible() : boxes.count() > 0, 30'000);
        QCOMPARE(dialog.isVisible(), !closes);
        if (!closes) {
            QCOMPARE(boxes.count(), 1);
            QVERIFY(boxes.allTexts().contains("Sending message failed|"));
            QVERIFY(boxes.allTexts().endsWith(told));
        }
        // Nothing typed is lost.
        QCOMPARE(dialog.page()->findChild<QTextEdit *>()->toPlainText(), "text1 <&");
        QTRY_VERIFY(!dialog.findChild<QProgressDialog *>());
    }

    void redirect()
    {
        m_maker->serve([](const HttpServer::Request &request) {
            return request.target == "/moved" ? HttpServer::text("OK")
                                              : HttpServer::redirect("/moved");
        });
        Driven dialog;
        dialog.fill();
        dialog.accept();
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        const QList<HttpServer::Request> &requests = m_maker->server().requests();
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests.at(1).method, "POST");
        QCOMPARE(requests.at(1).body, requests.at(0).body);
    }

    void redirectIntoTheClear()
    {
        const HttpServer clear([](const HttpServer::Request &) { return HttpServer::text("OK"); });
        m_maker->answer(HttpServer::redirect(clear.url().toEncoded()), true);
        Driven dialog;
        // Nobody has signed the certificate of the test.
        connect(dialog.findChild<QNetworkAccessManager *>(), &QNetworkAccessManager::sslErrors,
                [](QNetworkReply *reply) { reply->ignoreSslErrors(); });
        dialog.fill();
        const MessageBoxes boxes;
        dialog.accept();
        QTRY_COMPARE(boxes.count(), 1);
        QCOMPARE(m_maker->server().requests().size(), 1);
        QCOMPARE(clear.connections(), 0);
    }

    void cancelledUpload()
    {
        HttpServer::Response silent;
        silent.silent = true;
        m_maker->answer(silent);
        Driven dialog;
        dialog.fill();
        const MessageBoxes boxes;
        dialog.accept();
        QTRY_COMPARE(m_maker->server().requests().size(), 1);
        const auto *progress = dialog.findChild<QProgressDialog *>();
        QCOMPARE(progress->windowTitle(), "Sending feedback");
        QCOMPARE(progress->labelText(), "Sending feedback...");
        QVERIFY(progress->isModal());
        QTest::mouseClick(progress->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY(!dialog.findChild<QProgressDialog *>());
        QCOMPARE(boxes.count(), 0);
        QVERIFY(dialog.isVisible());
        m_maker->answer(HttpServer::text("OK"));
        dialog.accept();
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void crashedLastTime()
    {
        qputenv("TMPDIR", QFile::encodeName(m_maker->profile().path()));
        FeedbackDialog::presentDialogIfCrashed();
        QVERIFY(!GApplicationAddons::addons()->crashDetected());

        BreakpadCrashHandler::install();
        QFile file(BreakpadCrashHandler::crashLogPath() + "/Hoopline Organizer-1.crash");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("Signal: SIGSEGV");
        file.flush();
        const QDateTime now = QDateTime::currentDateTime();
        QVERIFY(file.setFileTime(now.addSecs(-30), QFileDevice::FileModificationTime));
        file.close();
        GSettings().setCrashLoggerLastCheck(now.addSecs(-60));
        QString shown;
        QTimer::singleShot(0, this, [&shown] {
            auto *dialog = qobject_cast<FeedbackDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            shown = dialog->findChild<QTextEdit *>("logs")->toPlainText();
            dialog->reject();
        });
        FeedbackDialog::presentDialogIfCrashed();
        QCOMPARE(shown, "Signal: SIGSEGV");
        QVERIFY(GApplicationAddons::addons()->crashDetected());
        QCOMPARE(m_maker->server().connections(), 0);
        // The second start finds nothing new, and returns without a dialog.
        FeedbackDialog::presentDialogIfCrashed();
    }

private:
    QDomElement sent(int index = 0) const
    {
        QDomDocument document;
        document.setContent(m_maker->server().requests().at(index).body);
        return document.documentElement();
    }

    std::unique_ptr<MakersServer> m_maker;
};

QTEST_MAIN(tst_Feedback)
#include "tst_feedback.moc"
