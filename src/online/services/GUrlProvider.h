#pragma once

#include <functional>
#include <QDir>
#include <QMap>
#include <QString>
#include <QUrl>

class QUrlQuery;

/**
 * The one place where web addresses of the maker are formed. They carry the
 * name and version of the program, the language and the system's version, and
 * nothing of the user's.
 */
class GUrlProvider
{
public:
    explicit GUrlProvider(const QString &applicationName);
    virtual ~GUrlProvider() = default;

    /** A page by its section, with further query items in map order. */
    virtual QUrl url(const QString &section, const QMap<QString, QString> &parameters) const;
    /** The download itself when @p direct, else the page about it. */
    virtual QUrl downloadUrl(bool direct) const;
    virtual QUrl feedBackUrl() const;
    virtual QUrl updateCheckUrl(bool beta) const;
    virtual QUrl supportUrl() const;
    virtual QUrl documentationUrl() const;
    /** @param exporter empty for the current window's own data format */
    virtual QUrl tutorialsUrl(bool gettingStarted, const QString &exporter) const;
    virtual QUrl shareUrl(const QString &service) const;
    /** A local file. */
    virtual QUrl acknowledgementsUrl() const;
    /**
     * The manual that came with the program, a local file: in the program's language where it
     * is written in that, else in English. The caller has to look whether it is there.
     */
    QUrl manualUrl() const;
    /** The production or the staging server, without a trailing slash. */
    virtual QString baseUrlString() const;

    /** Whether \a url is one of a build without a server of the maker's. */
    static bool leadsNowhere(const QUrl &url);

    /** Tells the data format of the current window, from which addresses take their exporter. */
    static void setDataFormatSource(std::function<QString()> source);
    /** Tells where the program's resources lie. */
    static void setResourcesDirectorySource(std::function<QDir()> source);

private:
    void addApplicationName(QUrlQuery &query) const;
    void addExporter(QMap<QString, QString> &parameters, const QString &exporter) const;

    QString m_name;
};
