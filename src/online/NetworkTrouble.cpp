#include "online/NetworkTrouble.h"

#include <QCoreApplication>
#include <QNetworkReply>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("NetworkTrouble", source);
}

QString causeOf(const QNetworkReply &reply)
{
    switch (reply.error()) {
    case QNetworkReply::NoError:
        return text(QT_TRANSLATE_NOOP("NetworkTrouble",
                                      "The answer cannot be used. In some networks a page to "
                                      "sign in on answers in the place of the server."));
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::UnknownNetworkError:
    case QNetworkReply::NetworkSessionFailedError:
        return text(QT_TRANSLATE_NOOP("NetworkTrouble",
                                      "The server was not found. Please check that the computer "
                                      "is connected to the internet."));
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError:
        return text(QT_TRANSLATE_NOOP("NetworkTrouble",
                                      "The server does not answer. Please try again later."));
    case QNetworkReply::SslHandshakeFailedError:
        return text(QT_TRANSLATE_NOOP("NetworkTrouble",
                                      "The connection to the server is not secure. Please check "
                                      "the date of the computer."));
    default:
        return text(QT_TRANSLATE_NOOP("NetworkTrouble",
                                      "The server reports an error. Please try again later."));
    }
}

} // namespace

QString NetworkTrouble::explain(const QNetworkReply &reply)
{
    const QUrl target = reply.attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    const QString moved = text(QT_TRANSLATE_NOOP("NetworkTrouble", "The address has moved:"));
    const QUrl address = target.isEmpty() ? reply.url() : reply.url().resolved(target);
    return (target.isEmpty() ? causeOf(reply) : moved) + QLatin1Char('\n') +
           address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
}
