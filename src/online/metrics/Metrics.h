#pragma once

#include "base/Clock.h"

#include <memory>
#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QNetworkRequest>
#include <QObject>
#include <QPair>
#include <QSslError>
#include <QString>
#include <QUrl>
#include <QVariant>

class QNetworkAccessManager;
class QNetworkReply;

/**
 * Sends anonymous usage events, once the user has agreed. Until the network
 * layer is started events wait in memory; while tracking is off they are
 * dropped. Nothing here fails or is shown to anyone. Main thread only.
 */
class Metrics : public QObject
{
    Q_OBJECT

public:
    /**
     * @param id the product identifier, which also names the endpoint's host
     * @param clock dates the events, and passes the time while quitting
     */
    static void createInstance(const QString &id,
                               const std::shared_ptr<Clock> &clock = std::make_shared<Clock>());
    static void deleteInstance();
    /** Null before createInstance() and after deleteInstance(). */
    static Metrics *instance();

    /** Reports @p name; does nothing without an instance. Values must be JSON's own types. */
    static void submitEvent(const QString &name, const QHash<QString, QVariant> &properties);
    static void submitProperties(const QHash<QString, QVariant> &properties);
    static void submitProperty(const QString &key, const QJsonValue &value);

    /** Sends events to @p url instead of the built-in address; an empty one restores that. */
    static void setEndpoint(const QUrl &url);

    /** Starts the network layer and sends what waits. Nothing is sent before this call. */
    void initNetworkAccessManager();

    /** Switches tracking and stores the choice; the change itself is reported once. */
    void setDoNotTrack(bool value);
    bool doNotTrack() const { return m_doNotTrack; }

    /** The user's anonymous identifier; empty while tracking is off. */
    QString id() const;

    /** Adds the identifier to a link; returns it as it is while tracking is off. */
    QString decorateLink(QString url) const;
    void openDecoratedLink(const QString &url) const;

    /** Waits for requests in flight, two seconds at most. */
    void forceSync();

    bool hasTrackingAgreement() const;
    /** Empty when there is none. @param plain plain text rather than HTML */
    QString trackingAgreementText(bool plain) const;
    /** Whether the user has seen the agreement in its present wording. */
    bool trackingAgreementPresented() const;
    void setTrackingAgreementPresented();

private slots:
    void replyFinished(QNetworkReply *reply);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

private:
    Metrics(const QString &id, const std::shared_ptr<Clock> &clock);
    void initUser();
    void submit();
    void clear();
    void post(const QNetworkRequest &request, const QByteArray &body);
    QNetworkRequest request() const;
    QByteArray body() const;

    static std::unique_ptr<Metrics> mInstance;
    static QUrl mEndpoint;

    const QString m_id;
    const std::shared_ptr<Clock> m_clock;
    QString m_uuid;
    QString m_event;
    QJsonObject m_properties;
    bool m_doNotTrack = true;
    QNetworkAccessManager *m_manager = nullptr;
    QList<QPair<QNetworkRequest, QByteArray>> m_pending;
    QHash<QNetworkReply *, QByteArray> m_replies;
};
