#include "support/HttpServer.h"

#include <memory>
#include <QFile>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpSocket>

namespace {

constexpr qint64 Chunk = 256 * 1024;
constexpr qint64 HugeBody = 100 * 1024 * 1024;

QByteArray tlsFile(const QString &name)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/tls/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Null until the whole request is there.
bool parse(const QByteArray &received, HttpServer::Request &request)
{
    const int end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    QList<QByteArray> lines = received.left(end).split('\n');
    const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
    request.method = first.value(0);
    request.target = first.value(1);
    for (const QByteArray &line : lines) {
        const int colon = line.indexOf(':');
        request.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    request.body = received.mid(end + 4);
    return request.body.size() >= request.headers.value("content-length").toInt();
}

} // namespace

HttpServer::HttpServer(Handler handler, bool tls) : m_handler(std::move(handler)), m_tls(tls)
{
    listen(QHostAddress::LocalHost);
}

HttpServer::Response HttpServer::text(const QByteArray &body)
{
    Response response;
    response.body = body;
    return response;
}

HttpServer::Response HttpServer::redirect(const QByteArray &location)
{
    Response response;
    response.status = 302;
    response.headers = {{"Location", location}};
    return response;
}

QMap<QByteArray, HttpServer::Response> HttpServer::oddAnswers()
{
    Response garbage;
    garbage.raw = "\x01\xff what?\n\n";
    Response error = text("<rss><channel/></rss>");
    error.status = 500;
    Response huge;
    huge.filler = HugeBody;
    return {{"garbage", garbage},
            {"error status", error},
            {"redirect to a file", redirect("file:///etc/passwd")},
            {"100 MB", huge}};
}

QUrl HttpServer::url(const QString &path) const
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2%3")
                    .arg(m_tls ? QStringLiteral("https") : QStringLiteral("http"))
                    .arg(serverPort())
                    .arg(path));
}

void HttpServer::incomingConnection(qintptr descriptor)
{
    ++m_connections;
    auto *socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { receive(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
        m_received.remove(socket);
        socket->deleteLater();
    });
    if (m_tls) {
        socket->setLocalCertificate(QSslCertificate(tlsFile("self-signed.pem")));
        socket->setPrivateKey(QSslKey(tlsFile("self-signed.key"), QSsl::Rsa));
        socket->startServerEncryption();
    }
}

void HttpServer::receive(QTcpSocket *socket)
{
    QByteArray &received = m_received[socket];
    received += socket->readAll();
    Request request;
    if (!parse(received, request))
        return;
    received.clear();
    m_requests.append(request);
    respond(socket, m_handler(request));
}

void HttpServer::respond(QTcpSocket *socket, const Response &response)
{
    if (response.silent)
        return;
    if (!response.raw.isEmpty()) {
        socket->write(response.raw);
        socket->disconnectFromHost();
        return;
    }
    QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + " Status\r\n";
    for (const auto &header : response.headers)
        head += header.first + ": " + header.second + "\r\n";
    head += "Content-Length: " + QByteArray::number(response.body.size() + response.filler) +
            "\r\nConnection: close\r\n\r\n";
    socket->write(head + response.body);
    auto remaining = std::make_shared<qint64>(response.filler);
    const auto more = [socket, remaining] {
        if (socket->bytesToWrite() > Chunk)
            return;
        if (*remaining <= 0) {
            socket->disconnectFromHost();
            return;
        }
        const qint64 size = qMin(Chunk, *remaining);
        *remaining -= size;
        socket->write(QByteArray(int(size), 'x'));
    };
    connect(socket, &QTcpSocket::bytesWritten, socket, more);
    more();
}
