#include "app/addons/GApplicationAddons.h"
#include "base/GSettings.h"
#include "online/FeedbackDialog.h"
#include "online/metrics/ReplyLimits.h"
#include "online/NetworkTrouble.h"
#include "online/services/GUrlProvider.h"
#include "widgets/controls/FocusReturn.h"
#include "widgets/controls/GMessageBox.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProgressDialog>

namespace {

constexpr int MaxRedirects = 5;
// Of a server's answer; an error page may be long.
constexpr int MaxShownText = 1000;
constexpr int ProgressWidth = 320;

bool mayFollow(const QUrl &from, const QUrl &target)
{
    const bool secure = target.scheme() == QStringLiteral("https");
    return target.isValid() && (secure || (target.scheme() == QStringLiteral("http") &&
                                           from.scheme() == QStringLiteral("http")));
}

} // namespace

void FeedbackDialog::accept()
{
    const GApplicationAddons *addons = GApplicationAddons::addons();
    if (!addons || m_reply)
        return;
    m_redirects = 0;
    m_cancelled = false;
    sendFeedback(addons->urlProvider()->feedBackUrl());
}

void FeedbackDialog::sendFeedback(const QUrl &url)
{
    if (m_includeMail->isChecked())
        GSettings().setFeedbackMailAddress(m_mail->text().trimmed());
    const FeedbackReport message = report();
    if (message.type == FeedbackReport::Question && message.mail.isEmpty()) {
        QMessageBox::warning(this, tr("Please add your mail address"),
                             tr("Please consider adding your mail address so I can answer your "
                                "request."),
                             QMessageBox::Ok);
        return;
    }
    showProgress();
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/xml"));
    ReplyLimits::prepare(request);
    m_reply = m_manager->post(request, message.toXml());
    ReplyLimits::apply(m_reply);
}

void FeedbackDialog::replyFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    m_reply.clear();
    const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty() && !m_cancelled)
        return follow(reply->url(), reply->url().resolved(target));
    hideProgress();
    if (m_cancelled)
        return;
    if (reply->error() != QNetworkReply::NoError)
        return showFailure(reply->errorString(), NetworkTrouble::explain(*reply));
    const QString answer = QString::fromUtf8(reply->readAll()).trimmed();
    if (answer.isEmpty() || answer == QStringLiteral("OK"))
        QDialog::accept();
    else
        showFailure(answer);
}

void FeedbackDialog::follow(const QUrl &from, const QUrl &target)
{
    if (++m_redirects <= MaxRedirects && mayFollow(from, target))
        return sendFeedback(target);
    hideProgress();
    showFailure(tr("The server sends the message on to an address that cannot be used."));
}

void FeedbackDialog::sslErrors(QNetworkReply *, const QList<QSslError> &errors)
{
    for (const QSslError &error : errors)
        qWarning("SSL-ERROR: %s", qPrintable(error.errorString()));
}

void FeedbackDialog::showProgress()
{
    if (m_progress)
        return;
    m_progress = new QProgressDialog(tr("Sending feedback..."), tr("Cancel"), 0, 0, this);
    m_progress->setWindowTitle(tr("Sending feedback"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setMinimumDuration(0);
    m_progress->setMinimumWidth(ProgressWidth);
    new FocusReturn(m_progress);
    connect(m_progress, &QProgressDialog::canceled, this, &FeedbackDialog::cancelUpload);
    m_progress->show();
}

void FeedbackDialog::hideProgress()
{
    if (!m_progress)
        return;
    // It may be this very dialog's own signal that brought us here.
    m_progress->disconnect(this);
    m_progress->hide();
    m_progress->deleteLater();
    m_progress = nullptr;
}

void FeedbackDialog::cancelUpload()
{
    m_cancelled = true;
    if (m_reply)
        m_reply->abort();
}

// The text is the server's, so it is shown as it is and nothing in it is loaded.
void FeedbackDialog::showFailure(const QString &text, const QString &explanation)
{
    GMessageBox box(GMessageBox::Critical, this, text.left(MaxShownText), explanation);
    box.setWindowTitle(tr("Sending message failed"));
    box.exec();
}
