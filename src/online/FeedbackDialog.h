#pragma once

#include "online/FeedbackReport.h"

#include <QDialog>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QSslError>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>

class FeedbackPage;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QNetworkAccessManager;
class QNetworkReply;
class QProgressDialog;
class QPushButton;
class QTabWidget;
class QTextEdit;
class QVBoxLayout;

/**
 * Sends the maker a message, or, in its crash form, the logs of a crash. It
 * stays open, with all that was typed, until the server has taken the message.
 */
class FeedbackDialog : public QDialog
{
    Q_OBJECT

public:
    /** The general form, with tabs. */
    explicit FeedbackDialog(QWidget *parent);

    /**
     * The crash form, when there are logs.
     * @param additional values that go along
     * @param message begins the user's description
     */
    FeedbackDialog(QWidget *parent, const QMap<QString, QVariant> &additional,
                   const QStringList &crashLogs, const QString &message);

    /** Looks for logs of crashes since the last look and offers to send them. Modal. */
    static void presentDialogIfCrashed();

public slots:
    /** Sends; the dialog closes once the server has agreed. */
    void accept() override;

private slots:
    void updateSendButton();
    void currentTabChanged(int index);
    void includeMailAddress(int state);
    void cancelUpload();
    void replyFinished(QNetworkReply *reply);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private:
    /** The fields of one tab; those that it has not are null. */
    struct Tab
    {
        FeedbackReport::Type type;
        QLineEdit *topic = nullptr;
        QTextEdit *text = nullptr;
        QTextEdit *reproduce = nullptr;
        QComboBox *urgency = nullptr;
        QCheckBox *critical = nullptr;

        bool isComplete() const;
    };

    void addCrashForm(QVBoxLayout *layout, const QString &message);
    void addTabs(QVBoxLayout *layout);
    FeedbackPage *addTab(const QString &title, const QString &image);
    QLineEdit *addTopic(QVBoxLayout *layout);
    QTextEdit *addText(QVBoxLayout *layout, const QString &caption);
    QComboBox *addUrgency(QVBoxLayout *layout);
    void addMailField(QVBoxLayout *layout);
    void addPrivacyNote(QVBoxLayout *layout);
    void addButtons(QVBoxLayout *layout);

    FeedbackReport report() const;
    QString mailAddress() const;
    void sendFeedback(const QUrl &url);
    void follow(const QUrl &from, const QUrl &target);
    void showProgress();
    void hideProgress();
    void showFailure(const QString &text, const QString &explanation = QString());

    QMap<QString, QVariant> m_additional;
    QStringList m_crashLogs;
    QTabWidget *m_tabWidget = nullptr;
    QList<Tab> m_tabs;
    QTextEdit *m_description = nullptr;
    QCheckBox *m_includeMail = nullptr;
    QLineEdit *m_mail = nullptr;
    QPushButton *m_sendButton = nullptr;
    QNetworkAccessManager *m_manager = nullptr;
    QPointer<QNetworkReply> m_reply;
    QProgressDialog *m_progress = nullptr;
    int m_redirects = 0;
    bool m_cancelled = false;
};
