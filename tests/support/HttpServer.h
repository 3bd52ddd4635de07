#pragma once

#include <functional>
#include <QByteArray>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QPair>
#include <QTcpServer>
#include <QUrl>

class QTcpSocket;

/**
 * A real HTTP server on the loopback interface that answers as oddly as a test
 * wants, and counts who came. It lives in the test's own event loop.
 */
class HttpServer : public QTcpServer
{
    Q_OBJECT

public:
    struct Request
    {
        QByteArray method;
        QByteArray target;
        /** By lower-case name. */
        QMap<QByteArray, QByteArray> headers;
        QByteArray body;
    };

    struct Response
    {
        int status = 200;
        QList<QPair<QByteArray, QByteArray>> headers;
        QByteArray body;
        /** Bytes of filler that follow the body. */
        qint64 filler = 0;
        /** The connection stays open and nothing is ever said. */
        bool silent = false;
        /** Sent as it is instead of a response, when not empty. */
        QByteArray raw;
    };

    using Handler = std::function<Response(const Request &)>;

    /** Listens on a free port. @param tls with a certificate that nobody should accept */
    explicit HttpServer(Handler handler, bool tls = false);

    static Response text(const QByteArray &body);
    static Response redirect(const QByteArray &location);

    /** By name, what no client should expect and every client should survive. */
    static QMap<QByteArray, Response> oddAnswers();

    QUrl url(const QString &path = "/") const;
    int connections() const { return m_connections; }
    const QList<Request> &requests() const { return m_requests; }

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void receive(QTcpSocket *socket);
    static void respond(QTcpSocket *socket, const Response &response);

    Handler m_handler;
    bool m_tls;
    int m_connections = 0;
    QList<Request> m_requests;
    QMap<QTcpSocket *, QByteArray> m_received;
};

Q_DECLARE_METATYPE(HttpServer::Response)
