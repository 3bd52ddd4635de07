#pragma once

#include <memory>
#include <QDate>
#include <QDir>
#include <QPixmap>
#include <QSharedPointer>
#include <QString>

class GFileAssociationHandler;
class GUrlProvider;

/** Services that every application object of the maker mixes in. Main thread only. */
class GApplicationAddons
{
public:
    /**
     * @param hasTrackingAgreement whether there is a text about usage metrics to show
     * @param applicationName as shown to the user
     * @param shortName the few letters that the product goes by
     */
    GApplicationAddons(bool hasTrackingAgreement, const QString &applicationName,
                       const QString &shortName);
    virtual ~GApplicationAddons();

    GApplicationAddons(const GApplicationAddons &) = delete;
    GApplicationAddons &operator=(const GApplicationAddons &) = delete;

    /** The one that is alive; null when there is none. */
    static GApplicationAddons *addons();

    /** Prepares the process; to be called before there is an application object. */
    static void basicInitialization();

    /** The day of the build; invalid when the build does not know it. */
    static QDate buildDate();

    /** Picture for the updater's windows; null at this level. */
    virtual QPixmap updaterPixmap() const;

    GFileAssociationHandler *fileAssociationHandler() const { return m_fileAssociations.get(); }
    QSharedPointer<GUrlProvider> urlProvider() const { return m_urlProvider; }

    bool crashDetected() const { return m_crashDetected; }
    void setCrashDetected(bool detected) { m_crashDetected = detected; }
    QString shortName() const { return m_shortName; }
    bool hasTrackingAgreement() const { return m_hasTrackingAgreement; }

    /** Where the program's own documents lie. */
    static QDir resourcesDirectory();
    /** Overrides resourcesDirectory(); empty goes back to the place beside the program. */
    static void setResourcesDirectory(const QString &path);

    /** Role of the url provider in the object registry; built from the application name. */
    static const QString di_UrlProvider;

private:
    static QString mResourcesDir;

    std::unique_ptr<GFileAssociationHandler> m_fileAssociations;
    QSharedPointer<GUrlProvider> m_urlProvider;
    bool m_crashDetected = false;
    QString m_shortName;
    bool m_hasTrackingAgreement;
};
