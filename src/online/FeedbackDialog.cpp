#include "online/FeedbackDialog.h"

#include "app/addons/GApplicationAddons.h"
#include "base/BuildConfig.h"
#include "base/GSettings.h"
#include "online/FeedbackPage.h"
#include "online/GCrashLogCollector.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

constexpr QSize FormSize(700, 580);

bool isFilled(const QTextEdit *edit)
{
    return !edit->toPlainText().trimmed().isEmpty();
}

} // namespace

bool FeedbackDialog::Tab::isComplete() const
{
    return (!topic || !topic->text().trimmed().isEmpty()) && isFilled(text) &&
           (!reproduce || isFilled(reproduce));
}

FeedbackDialog::FeedbackDialog(QWidget *parent) : FeedbackDialog(parent, {}, {}, QString()) {}

FeedbackDialog::FeedbackDialog(QWidget *parent, const QMap<QString, QVariant> &additional,
                               const QStringList &crashLogs, const QString &message)
    : QDialog(parent, Qt::Sheet), m_additional(additional), m_crashLogs(crashLogs),
      m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::finished, this, &FeedbackDialog::replyFinished);
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, &FeedbackDialog::sslErrors);
    auto *layout = new QVBoxLayout(this);
    if (crashLogs.isEmpty()) {
        setWindowTitle(tr("Send feedback"));
        addTabs(layout);
        addMailField(layout);
        addPrivacyNote(layout);
    } else {
        setWindowTitle(tr("%1 crash reporter").arg(QCoreApplication::applicationName()));
        addCrashForm(layout, message);
    }
    addButtons(layout);
    updateSendButton();
    resize(FormSize);
}

void FeedbackDialog::presentDialogIfCrashed()
{
    const QStringList logs = GCrashLogCollector().logsSinceLastCheck();
    if (logs.isEmpty())
        return;
    if (GApplicationAddons *addons = GApplicationAddons::addons())
        addons->setCrashDetected(true);
    FeedbackDialog(nullptr, {}, logs, QString()).exec();
}

void FeedbackDialog::addCrashForm(QVBoxLayout *layout, const QString &message)
{
    auto *page = new FeedbackPage(this, QStringLiteral("bug.svg"));
    QVBoxLayout *fields = page->fields();
    auto *apology = new QLabel(tr("<b>Sorry, %1 crashed!</b><br><br>Please describe what you did "
                                  "just before the crash. (optional)")
                                   .arg(QCoreApplication::applicationName()));
    apology->setWordWrap(true);
    m_description = new QTextEdit;
    m_description->setObjectName(QStringLiteral("description"));
    m_description->setAccessibleName(tr("Description"));
    m_description->setAcceptRichText(false);
    m_description->setTabChangesFocus(true);
    m_description->setPlainText(message);
    auto *logs = new QTextEdit;
    logs->setObjectName(QStringLiteral("logs"));
    logs->setReadOnly(true);
    logs->setTabChangesFocus(true);
    logs->setLineWrapMode(QTextEdit::NoWrap);
    logs->setPlainText(m_crashLogs.join(QStringLiteral("\n\n")));
    fields->addWidget(apology);
    fields->addWidget(m_description);
    auto *caption = new QLabel(tr("You are sending the following information:"));
    caption->setBuddy(logs);
    fields->addWidget(caption);
    fields->addWidget(logs, 1);
    addMailField(fields);
    layout->addWidget(page);
}

void FeedbackDialog::addTabs(QVBoxLayout *layout)
{
    m_tabWidget = new QTabWidget;
    m_tabWidget->setUsesScrollButtons(false);

    QVBoxLayout *fields = addTab(tr("Quick Feedback"), QStringLiteral("feedback.svg"))->fields();
    Tab feedback{FeedbackReport::Feedback};
    feedback.text = addText(fields, tr("What do you like, what can we do better?"));

    fields = addTab(tr("Support Question"), QStringLiteral("question.svg"))->fields();
    Tab question{FeedbackReport::Question};
    question.topic = addTopic(fields);
    question.text = addText(fields, tr("Your question:"));

    fields = addTab(tr("Feature Request"), QStringLiteral("idea.svg"))->fields();
    Tab feature{FeedbackReport::Feature};
    feature.topic = addTopic(fields);
    feature.text = addText(fields, tr("What feature would you like to see added or improved?"));
    feature.urgency = addUrgency(fields);

    fields = addTab(tr("Bug Report"), QStringLiteral("bug.svg"))->fields();
    Tab bug{FeedbackReport::Bug};
    bug.topic = addTopic(fields);
    bug.text = addText(fields, tr("What did you expect to happen? What happened instead?"));
    bug.reproduce = addText(fields, tr("What steps will reproduce this problem?"));
    bug.critical = new QCheckBox(tr("This is a critical bug"));
    fields->addWidget(bug.critical);

    m_tabs = {feedback, question, feature, bug};
    connect(m_tabWidget, &QTabWidget::currentChanged, this, &FeedbackDialog::currentTabChanged);
    layout->addWidget(m_tabWidget);
}

FeedbackPage *FeedbackDialog::addTab(const QString &title, const QString &image)
{
    auto *page = new FeedbackPage(this, image);
    m_tabWidget->addTab(page, title);
    return page;
}

QLineEdit *FeedbackDialog::addTopic(QVBoxLayout *layout)
{
    auto *label = new QLabel(tr("Topic:"));
    auto *edit = new QLineEdit;
    label->setBuddy(edit);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(edit);
    layout->addLayout(row);
    connect(edit, &QLineEdit::textChanged, this, &FeedbackDialog::updateSendButton);
    return edit;
}

QTextEdit *FeedbackDialog::addText(QVBoxLayout *layout, const QString &caption)
{
    auto *label = new QLabel(caption);
    auto *edit = new QTextEdit;
    edit->setAcceptRichText(false);
    edit->setTabChangesFocus(true);
    label->setWordWrap(true);
    label->setBuddy(edit);
    layout->addWidget(label);
    layout->addWidget(edit);
    connect(edit, &QTextEdit::textChanged, this, &FeedbackDialog::updateSendButton);
    return edit;
}

// The server gets the words of the source language, whatever the user reads.
QComboBox *FeedbackDialog::addUrgency(QVBoxLayout *layout)
{
    auto *label = new QLabel(tr("How important is this to you?"));
    auto *choice = new QComboBox;
    choice->addItem(tr("Nice to have"), QStringLiteral("Nice to have"));
    choice->addItem(tr("Very important"), QStringLiteral("Very important"));
    choice->addItem(tr("Deal breaker"), QStringLiteral("Deal breaker"));
    label->setBuddy(choice);
    layout->addWidget(label);
    layout->addWidget(choice);
    return choice;
}

void FeedbackDialog::addMailField(QVBoxLayout *layout)
{
    m_includeMail = new QCheckBox(tr("Include email address:"));
    m_mail = new QLineEdit(GSettings().feedbackMailAddress());
    m_mail->setEnabled(false);
    m_mail->setAccessibleName(tr("Email address"));
    connect(m_includeMail, &QCheckBox::stateChanged, this, &FeedbackDialog::includeMailAddress);
    auto *row = new QHBoxLayout;
    row->addWidget(m_includeMail);
    row->addWidget(m_mail);
    layout->addLayout(row);
}

void FeedbackDialog::addPrivacyNote(QVBoxLayout *layout)
{
    auto *note = new QLabel(
        tr("Your message goes to %1, together with the name and version of %2 and of your "
           "operating system, and is stored there to answer you and to improve the program. "
           "<a href=\"%3\">Privacy</a>")
            .arg(QUrl(QString::fromLatin1(BuildConfig::BaseUrl)).host().toHtmlEscaped(),
                 QCoreApplication::applicationName().toHtmlEscaped(),
                 QString::fromLatin1(BuildConfig::PrivacyUrl).toHtmlEscaped()));
    note->setWordWrap(true);
    note->setTextInteractionFlags(Qt::TextBrowserInteraction);
    note->setOpenExternalLinks(true);
    layout->addWidget(note);
}

void FeedbackDialog::addButtons(QVBoxLayout *layout)
{
    auto *buttons = new QDialogButtonBox;
    m_sendButton = buttons->addButton(tr("Send"), QDialogButtonBox::AcceptRole);
    m_sendButton->setObjectName(QStringLiteral("send"));
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &FeedbackDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FeedbackDialog::reject);
    layout->addWidget(buttons);
}

void FeedbackDialog::updateSendButton()
{
    // The fields of the first tab change before there is a button.
    if (m_sendButton && m_tabWidget)
        m_sendButton->setEnabled(m_tabs.at(m_tabWidget->currentIndex()).isComplete());
}

void FeedbackDialog::currentTabChanged(int)
{
    updateSendButton();
}

void FeedbackDialog::includeMailAddress(int state)
{
    m_mail->setEnabled(state == Qt::Checked);
}

QString FeedbackDialog::mailAddress() const
{
    return m_includeMail->isChecked() ? m_mail->text().trimmed() : QString();
}

FeedbackReport FeedbackDialog::report() const
{
    FeedbackReport report;
    report.mail = mailAddress();
    report.additional = m_additional;
    if (!m_tabWidget) {
        report.type = FeedbackReport::Crash;
        report.text = m_description->toPlainText();
        report.crashLogs = m_crashLogs;
        return report;
    }
    const Tab &tab = m_tabs.at(m_tabWidget->currentIndex());
    report.type = tab.type;
    report.text = tab.text->toPlainText();
    if (tab.topic)
        report.topic = tab.topic->text();
    if (tab.reproduce)
        report.reproduce = tab.reproduce->toPlainText();
    if (tab.urgency)
        report.urgency = tab.urgency->currentData().toString();
    report.critical = tab.critical && tab.critical->isChecked();
    return report;
}
