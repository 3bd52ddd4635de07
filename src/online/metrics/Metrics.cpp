#include "online/metrics/Metrics.h"

#include "app/addons/GApplicationAddons.h"
#include "base/BuildConfig.h"
#include "base/Error.h"
#include "base/files/FileTools.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/metrics/ReplyLimits.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUuid>

namespace {

constexpr int SyncRounds = 20;
constexpr std::chrono::milliseconds SyncRound(100);

QUrl defaultEndpoint(const QString &id)
{
    return QUrl(QStringLiteral("https://t%1.%2/p")
                    .arg(id, QString::fromLatin1(BuildConfig::MetricsDomain)));
}

} // namespace

std::unique_ptr<Metrics> Metrics::mInstance;
QUrl Metrics::mEndpoint;

Metrics::Metrics(const QString &id, const std::shared_ptr<Clock> &clock) : m_id(id), m_clock(clock)
{
    initUser();
}

void Metrics::createInstance(const QString &id, const std::shared_ptr<Clock> &clock)
{
    mInstance.reset(new Metrics(id, clock));
}

void Metrics::deleteInstance()
{
    mInstance.reset();
}

Metrics *Metrics::instance()
{
    return mInstance.get();
}

void Metrics::setEndpoint(const QUrl &url)
{
    mEndpoint = url;
}

void Metrics::submitEvent(const QString &name, const QHash<QString, QVariant> &properties)
{
    if (!mInstance)
        return;
    mInstance->m_event = name;
    submitProperties(properties);
}

void Metrics::submitProperties(const QHash<QString, QVariant> &properties)
{
    if (!mInstance)
        return;
    for (auto property = properties.begin(); property != properties.end(); ++property)
        mInstance->m_properties.insert(property.key(), QJsonValue::fromVariant(property.value()));
    mInstance->submit();
}

void Metrics::submitProperty(const QString &key, const QJsonValue &value)
{
    submitProperties({{key, value.toVariant()}});
}

void Metrics::initUser()
{
    GSettings settings;
    m_uuid = settings.statisticsUUID();
    m_doNotTrack = !settings.sendStatisticsEnabled();
    if (!m_uuid.isEmpty())
        return;
    m_uuid = QUuid::createUuid().toString(QUuid::Id128);
    m_doNotTrack = true;
    settings.setStatisticsUUID(m_uuid);
    settings.setSendStatisticsEnabled(false);
}

void Metrics::setDoNotTrack(bool value)
{
    const QString name = QStringLiteral("do-not-track");
    m_doNotTrack = false;
    submitProperty(name, value);
    submitEvent(name, {{QStringLiteral("value"), value}});
    GSettings().setSendStatisticsEnabled(!value);
    m_doNotTrack = value;
}

QString Metrics::id() const
{
    return m_doNotTrack ? QString() : m_uuid;
}

void Metrics::submit()
{
    if (!m_uuid.isEmpty() && !m_doNotTrack) {
        if (m_manager)
            post(request(), body());
        else
            m_pending.append(qMakePair(request(), body()));
    }
    clear();
}

void Metrics::clear()
{
    m_event.clear();
    m_properties = QJsonObject();
}

QNetworkRequest Metrics::request() const
{
    QNetworkRequest request(mEndpoint.isEmpty() ? defaultEndpoint(m_id) : mEndpoint);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("zq-qt"));
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    ReplyLimits::prepare(request);
    return request;
}

QByteArray Metrics::body() const
{
    const qint64 time = qint64(m_clock->sinceEpoch().count()) / 1000;
    QJsonObject body{
        {QStringLiteral("c"), m_id}, {QStringLiteral("u"), m_uuid}, {QStringLiteral("ts"), time}};
    if (!m_event.isEmpty())
        body.insert(QStringLiteral("e"), m_event);
    if (!m_properties.isEmpty())
        body.insert(QStringLiteral("p"), m_properties);
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

void Metrics::initNetworkAccessManager()
{
    if (m_manager)
        return;
    m_manager = new QNetworkAccessManager(this);
    connect(m_manager, &QNetworkAccessManager::finished, this, &Metrics::replyFinished);
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, &Metrics::sslErrors);
    while (!m_pending.isEmpty()) {
        const QPair<QNetworkRequest, QByteArray> next = m_pending.takeFirst();
        post(next.first, next.second);
    }
}

void Metrics::post(const QNetworkRequest &request, const QByteArray &body)
{
    QNetworkReply *reply = m_manager->post(request, body);
    ReplyLimits::apply(reply);
    m_replies.insert(reply, body);
}

void Metrics::replyFinished(QNetworkReply *reply)
{
    m_replies.remove(reply);
    reply->deleteLater();
}

// Nothing that is sent is worth more than a delivery to the wrong server costs.
void Metrics::sslErrors(QNetworkReply *reply, const QList<QSslError> &)
{
    reply->ignoreSslErrors();
}

void Metrics::forceSync()
{
    for (int round = 0; round < SyncRounds && !m_replies.isEmpty(); ++round) {
        m_clock->sleep(SyncRound);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

QString Metrics::decorateLink(QString url) const
{
    if (m_doNotTrack)
        return url;
    url += url.contains(QLatin1Char('?')) ? QLatin1Char('&') : QLatin1Char('?');
    return url + QStringLiteral("_zq=") + id();
}

void Metrics::openDecoratedLink(const QString &url) const
{
    QDesktopServices::openUrl(QUrl(decorateLink(url)));
}

bool Metrics::hasTrackingAgreement() const
{
    const GApplicationAddons *addons = GApplicationAddons::addons();
    return addons && addons->hasTrackingAgreement();
}

QString Metrics::trackingAgreementText(bool plain) const
{
    if (!hasTrackingAgreement())
        return QString();
    const QString name =
        plain ? QStringLiteral(":/tracking.txt") : QStringLiteral(":/tracking.html");
    try {
        return QString::fromUtf8(
            FileTools::readAll(GTranslationLoader::instance()->localizedFilename(name)));
    } catch (const Error &) {
        return QString();
    }
}

bool Metrics::trackingAgreementPresented() const
{
    return GSettings().trackingAgreementPresented(trackingAgreementText(false));
}

void Metrics::setTrackingAgreementPresented()
{
    GSettings().setTrackingAgreementPresented(trackingAgreementText(false));
}
