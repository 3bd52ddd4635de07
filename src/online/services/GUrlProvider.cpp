#include "online/services/GUrlProvider.h"

#include "base/BuildConfig.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/services/SystemInquiry.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrlQuery>

namespace {

#if defined(Q_OS_MACOS)
constexpr const char *PlatformTag = "mac";
#elif defined(Q_OS_WIN)
constexpr const char *PlatformTag = "windows";
#else
constexpr const char *PlatformTag = "linux";
#endif

std::function<QString()> dataFormatSource;
std::function<QDir()> resourcesDirectorySource;

QUrl withQuery(const QString &address, const QUrlQuery &query)
{
    QUrl url(address);
    url.setQuery(query);
    return url;
}

QString documentPath(const QString &name)
{
    const QDir resources = resourcesDirectorySource ? resourcesDirectorySource() : QDir();
    return resources.absoluteFilePath(QStringLiteral("documents/") + name);
}

// A query item may hold a "+" or a blank, which servers take for each other
// unless they are encoded.
void addItem(QUrlQuery &query, const QString &key, const QString &value)
{
    query.addQueryItem(key, QString::fromLatin1(QUrl::toPercentEncoding(value)));
}

} // namespace

GUrlProvider::GUrlProvider(const QString &applicationName)
    : m_name(QString(applicationName).remove(QLatin1Char(' ')))
{
}

QUrl GUrlProvider::url(const QString &section, const QMap<QString, QString> &parameters) const
{
    QUrlQuery query;
    addItem(query, QStringLiteral("s"), section);
    addApplicationName(query);
    for (auto item = parameters.begin(); item != parameters.end(); ++item)
        addItem(query, item.key(), item.value());
    return withQuery(baseUrlString() + QStringLiteral("/redirect"), query);
}

QUrl GUrlProvider::downloadUrl(bool direct) const
{
    if (direct)
        return QUrl(QStringLiteral("%1/%2/download").arg(baseUrlString(), m_name.toLower()));
    return url(QStringLiteral("download"), {});
}

QUrl GUrlProvider::feedBackUrl() const
{
    QUrlQuery query;
    addApplicationName(query);
    return withQuery(baseUrlString() + QStringLiteral("/php/feedback.php"), query);
}

QUrl GUrlProvider::updateCheckUrl(bool beta) const
{
    QUrlQuery query;
    addItem(query, QStringLiteral("v"), QCoreApplication::applicationVersion());
    addItem(query, QStringLiteral("b"), beta ? QStringLiteral("yes") : QStringLiteral("no"));
    addItem(query, QStringLiteral("o"), QString::fromLatin1(PlatformTag));
    addItem(query, QStringLiteral("ov"), theSystemInquiry()->osVersion());
    addItem(query, QStringLiteral("bit"), QStringLiteral("64"));
    addItem(query, QStringLiteral("lang"), GTranslationLoader::instance()->languageCode());
    return withQuery(
        QStringLiteral("%1/releases/%2/updatecheck.php").arg(baseUrlString(), m_name.toLower()),
        query);
}

QUrl GUrlProvider::supportUrl() const
{
    return url(QStringLiteral("support"), {});
}

QUrl GUrlProvider::documentationUrl() const
{
    QMap<QString, QString> parameters;
    addExporter(parameters, QString());
    return url(QStringLiteral("documentation"), parameters);
}

QUrl GUrlProvider::tutorialsUrl(bool gettingStarted, const QString &exporter) const
{
    QMap<QString, QString> parameters;
    addExporter(parameters, exporter);
    return url(gettingStarted ? QStringLiteral("getting-started") : QStringLiteral("tutorials"),
               parameters);
}

QUrl GUrlProvider::shareUrl(const QString &service) const
{
    QMap<QString, QString> parameters{{QStringLiteral("service"), service}};
    addExporter(parameters, QString());
    return url(QStringLiteral("share"), parameters);
}

QUrl GUrlProvider::acknowledgementsUrl() const
{
    return QUrl::fromLocalFile(documentPath(QStringLiteral("Acknowledgements.html")));
}

QUrl GUrlProvider::manualUrl() const
{
    const QString path = documentPath(QStringLiteral("manual.html"));
    return QUrl::fromLocalFile(GTranslationLoader::instance()->localizedFilename(path));
}

QString GUrlProvider::baseUrlString() const
{
    return QString::fromLatin1(GSettings().useStagingServer() ? BuildConfig::StagingUrl
                                                              : BuildConfig::BaseUrl);
}

bool GUrlProvider::leadsNowhere(const QUrl &url)
{
    // Names under this domain are reserved and never given to anybody.
    return url.host().endsWith(QLatin1String(".example"));
}

void GUrlProvider::setDataFormatSource(std::function<QString()> source)
{
    dataFormatSource = std::move(source);
}

void GUrlProvider::setResourcesDirectorySource(std::function<QDir()> source)
{
    resourcesDirectorySource = std::move(source);
}

void GUrlProvider::addApplicationName(QUrlQuery &query) const
{
    addItem(query, QStringLiteral("p"), m_name);
    addItem(query, QStringLiteral("utm_source"), m_name);
    addItem(query, QStringLiteral("lang"), GTranslationLoader::instance()->languageCode());
}

void GUrlProvider::addExporter(QMap<QString, QString> &parameters, const QString &exporter) const
{
    QString format = exporter;
    if (format.isEmpty() && dataFormatSource)
        format = dataFormatSource();
    if (!format.isEmpty())
        parameters.insert(QStringLiteral("exporter"), format);
}
