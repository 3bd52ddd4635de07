#include "online/metrics/ReplyLimits.h"

#include <QNetworkReply>
#include <QNetworkRequest>

void ReplyLimits::prepare(QNetworkRequest &request)
{
    request.setTransferTimeout(TransferTimeout);
    request.setRawHeader("Accept-Encoding", "identity");
}

void ReplyLimits::apply(QNetworkReply *reply)
{
    reply->setReadBufferSize(MaxReplySize + 1);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > MaxReplySize)
            reply->abort();
    });
}
