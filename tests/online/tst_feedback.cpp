#include "app/base/GSettings.h"
#include "online/BreakpadCrashHandler.h"
#include "online/FeedbackDialog.h"
#include "online/HttpServer.h"
#include "online/LocalProvider.h"
#include "online/ModalBoxes.h"
#include "online/services/SystemInquiry.h"

#include <memory>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDomDocument>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

namespace {

HttpServer::Response body(const QByteArray &text)
{
    HttpServer::Response response;
    response.body = text;
    return response;
}

// Children of an element as "name=text", in order.
QStringList childTexts(const QDomElement &element)
{
    QStringList list;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        list.append(child.tagName() + QLatin1Char('=') + child.text());
    return list;
}

QPushButton *sendButton(const FeedbackDialog &dialog)
{
    return dialog.findChild<QPushButton *>(QStringLiteral("send"));
}

} // namespace

Q_DECLARE_METATYPE(HttpServer::Response)

/** The feedback dialog, typed into and sent to a real server. */
class tst_Feedback : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void tabs_data();
    void tabs();
    void crashForm();
    void mailIsOptional();
    void questionNeedsAnAddress();
    void answers_data();
    void answers();
    void badCertificate();
    void redirect();
    void endlessRedirect();
    void cancelledUpload();
    void crashedLastTime();
    void logsThatXmlCannotHold();

private:
    void serve(HttpServer::Handler handler, bool tls = false);
    static void fill(FeedbackDialog &dialog);
    static QLineEdit *mailField(const FeedbackDialog &dialog);
    QDomElement sent(int index = 0) const;

    QTemporaryDir m_dir;
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<GApplicationAddons> m_addons;
};

void tst_Feedback::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setApplicationName(QStringLiteral("Hoopline Organizer"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.1.4"));
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("s.ini")));
    LocalProvider::install();
}

void tst_Feedback::init()
{
    GSettings().flushSettings({});
    m_addons = std::make_unique<GApplicationAddons>(true, QStringLiteral("Hoopline Organizer"),
                                                    QStringLiteral("hl"));
    serve([](const HttpServer::Request &) { return body("OK\n"); });
}

void tst_Feedback::serve(HttpServer::Handler handler, bool tls)
{
    m_server = std::make_unique<HttpServer>(std::move(handler), tls);
    LocalProvider::base = m_server->url(QString()).toString();
}

// Types into every field of the current tab.
void tst_Feedback::fill(FeedbackDialog &dialog)
{
    const QWidget *page = dialog.findChild<QTabWidget *>()->currentWidget();
    for (QLineEdit *edit : page->findChildren<QLineEdit *>())
        QTest::keyClicks(edit, QStringLiteral("topic"));
    int number = 0;
    for (QTextEdit *edit : page->findChildren<QTextEdit *>())
        QTest::keyClicks(edit, QStringLiteral("text%1 <&").arg(++number));
}

QLineEdit *tst_Feedback::mailField(const FeedbackDialog &dialog)
{
    for (QLineEdit *edit : dialog.findChildren<QLineEdit *>()) {
        const auto *tabs = dialog.findChild<QTabWidget *>();
        if (!tabs || !tabs->isAncestorOf(edit))
            return edit;
    }
    return nullptr;
}

QDomElement tst_Feedback::sent(int index) const
{
    QDomDocument document;
    document.setContent(m_server->requests().at(index).body);
    return document.documentElement();
}

void tst_Feedback::tabs_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("feedback") << 0 << "Quick Feedback"
                              << "feedback"
                              << "feedback" << QStringList{"message=text1 <&"};
    QTest::newRow("question") << 1 << "Support Question"
                              << "question"
                              << "support" << QStringList{"question=text1 <&", "topic=topic"};
    QTest::newRow("feature") << 2 << "Feature Request"
                             << "feature"
                             << "feature"
                             << QStringList{"request=text1 <&", "urgency=Deal breaker",
                                            "topic=topic"};
    QTest::newRow("bug") << 3 << "Bug Report"
                         << "bug"
                         << "bug"
                         << QStringList{"expected=text1 <&", "reproduce=text2 <&", "critical=yes",
                                        "topic=topic"};
}

void tst_Feedback::tabs()
{
    QFETCH(int, tab);
    QFETCH(QString, title);
    QFETCH(QString, type);
    QFETCH(QString, element);
    QFETCH(QStringList, expected);
    FeedbackDialog dialog(nullptr);
    dialog.show();
    auto *tabs = dialog.findChild<QTabWidget *>();
    QCOMPARE(tabs->count(), 4);
    tabs->setCurrentIndex(tab);
    QCOMPARE(tabs->tabText(tab), title);
    const QPushButton *send = sendButton(dialog);
    QVERIFY(!send->isEnabled());
    fill(dialog);
    QVERIFY(send->isEnabled());

    // Each field by itself is needed, and blanks do not fill it.
    for (QTextEdit *edit : tabs->currentWidget()->findChildren<QTextEdit *>()) {
        const QString text = edit->toPlainText();
        edit->setPlainText(QStringLiteral(" \n"));
        QVERIFY(!send->isEnabled());
        edit->setPlainText(text);
        QVERIFY(send->isEnabled());
    }
    for (QLineEdit *edit : tabs->currentWidget()->findChildren<QLineEdit *>()) {
        edit->setText(QStringLiteral("  "));
        QVERIFY(!send->isEnabled());
        edit->setText(QStringLiteral("topic"));
    }
    tabs->setCurrentIndex(tab == 0 ? 1 : 0);
    QVERIFY(!send->isEnabled());
    tabs->setCurrentIndex(tab);
    QVERIFY(send->isEnabled());

    for (QComboBox *choice : tabs->currentWidget()->findChildren<QComboBox *>())
        choice->setCurrentIndex(2);
    for (QCheckBox *box : tabs->currentWidget()->findChildren<QCheckBox *>())
        box->setChecked(true);
    dialog.findChildren<QCheckBox *>().last()->setChecked(true);
    mailField(dialog)->setText(QStringLiteral("jo@mail.example"));
    QTest::mouseClick(sendButton(dialog), Qt::LeftButton);
    QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_server->requests().size(), 1);
    const HttpServer::Request request = m_server->requests().first();
    QCOMPARE(request.method, QByteArray("POST"));
    QVERIFY(request.target.startsWith("/php/feedback.php?p=HooplineOrganizer"));
    QCOMPARE(request.headers.value("content-type"), QByteArray("text/xml"));
    const QDomElement root = sent();
    QCOMPARE(root.tagName(), QStringLiteral("feedback"));
    QCOMPARE(root.attribute(QStringLiteral("version")), QStringLiteral("1.0"));
    QStringList head = childTexts(root);
    head.removeLast();
    QCOMPARE(head, (QStringList{"os=" + theSystemInquiry()->osString(), "mail=jo@mail.example",
                                "appName=Hoopline Organizer", "appVersion=1.1.4", "type=" + type}));
    QCOMPARE(root.lastChildElement().tagName(), element);
    QCOMPARE(childTexts(root.lastChildElement()), expected);
}

void tst_Feedback::crashForm()
{
    FeedbackDialog dialog(nullptr, {{QStringLiteral("k"), 7}},
                          {QStringLiteral("log one"), QStringLiteral("log two")}, QString());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Hoopline Organizer crash reporter"));
    dialog.show();
    auto *logs = dialog.findChild<QTextEdit *>(QStringLiteral("logs"));
    QVERIFY(logs->isReadOnly());
    QVERIFY(logs->toPlainText().contains(QStringLiteral("log one")));
    QVERIFY(logs->toPlainText().contains(QStringLiteral("log two")));
    QVERIFY(sendButton(dialog)->isEnabled());
    auto *description = dialog.findChild<QTextEdit *>(QStringLiteral("description"));
    QTest::keyClicks(description, QStringLiteral("I sewed"));
    QTest::mouseClick(sendButton(dialog), Qt::LeftButton);
    QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(childTexts(sent().firstChildElement(QStringLiteral("additional"))),
             (QStringList{"key=k", "value=7"}));
    QCOMPARE(childTexts(sent().firstChildElement(QStringLiteral("crash"))),
             (QStringList{"description=I sewed\n\nOverlayIcons: ", "log=log one", "log=log two"}));
}

void tst_Feedback::mailIsOptional()
{
    GSettings().setFeedbackMailAddress(QStringLiteral("jo@mail.example"));
    FeedbackDialog dialog(nullptr);
    dialog.show();
    QLineEdit *mail = mailField(dialog);
    QCOMPARE(mail->text(), QStringLiteral("jo@mail.example"));
    QVERIFY(!mail->isEnabled());
    auto *box = dialog.findChildren<QCheckBox *>().last();
    QVERIFY(!box->isChecked());
    box->click();
    QVERIFY(mail->isEnabled());
    mail->setText(QStringLiteral("other@mail.example"));
    box->click();
    QVERIFY(!mail->isEnabled());
    fill(dialog);
    dialog.accept();
    QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(sent().firstChildElement(QStringLiteral("mail")).text().isEmpty());
    QCOMPARE(GSettings().feedbackMailAddress(), QStringLiteral("jo@mail.example"));
}

void tst_Feedback::questionNeedsAnAddress()
{
    FeedbackDialog dialog(nullptr);
    dialog.show();
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    fill(dialog);
    ModalBoxes boxes;
    dialog.accept();
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY(boxes.texts.first().endsWith(
        QStringLiteral("Please consider adding your mail address so I can answer your request.")));
    QCOMPARE(m_server->connections(), 0);
    QVERIFY(dialog.isVisible());
    QVERIFY(sendButton(dialog)->isEnabled());
}

void tst_Feedback::answers_data()
{
    QTest::addColumn<HttpServer::Response>("response");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QString>("told");
    QTest::newRow("OK") << body("OK") << true << "";
    QTest::newRow("nothing") << body(" \n") << true << "";
    QTest::newRow("refusal") << body("<b>No</b> thanks") << false << "<b>No</b> thanks";
    QTest::newRow("in small letters") << body("ok") << false << "ok";
    HttpServer::Response response;
    response.status = 500;
    QTest::newRow("error status") << response << false << "";
    response = {};
    response.raw = "garbage";
    QTest::newRow("garbage") << response << false << "";
    response = {};
    response.filler = 100 * 1024 * 1024;
    QTest::newRow("100 MB") << response << false << "";
    response = {};
    response.status = 302;
    response.headers = {{"Location", "file:///etc/passwd"}};
    QTest::newRow("redirect to a file") << response << false << "";
}

void tst_Feedback::answers()
{
    QFETCH(HttpServer::Response, response);
    QFETCH(bool, closes);
    QFETCH(QString, told);
    serve([response](const HttpServer::Request &) { return response; });
    FeedbackDialog dialog(nullptr);
    dialog.show();
    fill(dialog);
    ModalBoxes boxes;
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(closes ? !dialog.isVisible() : !boxes.texts.isEmpty(), 30'000);
    QCOMPARE(dialog.isVisible(), !closes);
    if (!closes) {
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts.first().contains(QStringLiteral("Sending message failed|")));
        QVERIFY(boxes.texts.first().endsWith(told));
    }
    // Nothing typed is lost.
    const QWidget *page = dialog.findChild<QTabWidget *>()->currentWidget();
    QCOMPARE(page->findChild<QTextEdit *>()->toPlainText(), QStringLiteral("text1 <&"));
    QTRY_VERIFY(!dialog.findChild<QProgressDialog *>());
}

void tst_Feedback::badCertificate()
{
    serve([](const HttpServer::Request &) { return body("OK"); }, true);
    FeedbackDialog dialog(nullptr);
    dialog.show();
    fill(dialog);
    ModalBoxes boxes;
    dialog.accept();
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY(dialog.isVisible());
    QVERIFY(m_server->requests().isEmpty());
}

void tst_Feedback::redirect()
{
    serve([](const HttpServer::Request &request) {
        if (request.target == "/moved")
            return body("OK");
        HttpServer::Response response;
        response.status = 302;
        response.headers = {{"Location", "/moved"}};
        return response;
    });
    FeedbackDialog dialog(nullptr);
    dialog.show();
    fill(dialog);
    dialog.accept();
    QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(m_server->requests().size(), 2);
    QCOMPARE(m_server->requests().at(1).method, QByteArray("POST"));
    QCOMPARE(m_server->requests().at(1).body, m_server->requests().at(0).body);
}

void tst_Feedback::endlessRedirect()
{
    serve([](const HttpServer::Request &) {
        HttpServer::Response response;
        response.status = 302;
        response.headers = {{"Location", "/again"}};
        return response;
    });
    FeedbackDialog dialog(nullptr);
    dialog.show();
    fill(dialog);
    ModalBoxes boxes;
    dialog.accept();
    QTRY_COMPARE(boxes.texts.size(), 1);
    QVERIFY(m_server->requests().size() < 10);
    QVERIFY(dialog.isVisible());
}

void tst_Feedback::cancelledUpload()
{
    HttpServer::Response silent;
    silent.silent = true;
    serve([silent](const HttpServer::Request &) { return silent; });
    FeedbackDialog dialog(nullptr);
    dialog.show();
    fill(dialog);
    ModalBoxes boxes;
    dialog.accept();
    QTRY_COMPARE(m_server->requests().size(), 1);
    auto *progress = dialog.findChild<QProgressDialog *>();
    QCOMPARE(progress->windowTitle(), QStringLiteral("Sending feedback"));
    QCOMPARE(progress->labelText(), QStringLiteral("Sending feedback..."));
    QVERIFY(progress->isModal());
    QTest::mouseClick(progress->findChild<QPushButton *>(), Qt::LeftButton);
    QTRY_VERIFY(!dialog.findChild<QProgressDialog *>());
    QVERIFY(boxes.texts.isEmpty());
    QVERIFY(dialog.isVisible());
    serve([](const HttpServer::Request &) { return body("OK"); });
    dialog.accept();
    QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_Feedback::crashedLastTime()
{
    qputenv("TMPDIR", QFile::encodeName(m_dir.path()));
    FeedbackDialog::presentDialogIfCrashed();
    QVERIFY(!GApplicationAddons::addons()->crashDetected());

    BreakpadCrashHandler::install();
    QFile file(BreakpadCrashHandler::crashLogPath() +
               QStringLiteral("/Hoopline Organizer-1.crash"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Signal: SIGSEGV");
    file.close();
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime().addSecs(-60));
    QString shown;
    QTimer::singleShot(0, this, [&shown] {
        auto *dialog = qobject_cast<FeedbackDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        shown = dialog->findChild<QTextEdit *>(QStringLiteral("logs"))->toPlainText();
        dialog->reject();
    });
    FeedbackDialog::presentDialogIfCrashed();
    QCOMPARE(shown, QStringLiteral("Signal: SIGSEGV"));
    QVERIFY(GApplicationAddons::addons()->crashDetected());
    QCOMPARE(m_server->connections(), 0);
    // The second start finds nothing new, and returns without a dialog.
    FeedbackDialog::presentDialogIfCrashed();
}

void tst_Feedback::logsThatXmlCannotHold()
{
    FeedbackReport report;
    report.type = FeedbackReport::Crash;
    report.crashLogs = QStringList(QStringLiteral("a\x01") + QChar(0xffff) + QStringLiteral("b"));
    QDomDocument document;
    QVERIFY(document.setContent(report.toXml()));
    QCOMPARE(document.documentElement().lastChildElement().lastChildElement().text(),
             QStringLiteral("ab"));
}

QTEST_MAIN(tst_Feedback)
#include "tst_feedback.moc"
