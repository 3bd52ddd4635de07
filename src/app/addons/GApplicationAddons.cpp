#include "app/addons/GApplicationAddons.h"

#include "app/addons/GFileAssociationHandler.h"
#include "base/BuildConfig.h"
#include "base/DI.h"
#include "base/GDebug.h"
#include "base/qt/Application.h"
#include "online/services/GUrlProvider.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QNetworkProxyFactory>

namespace {

constexpr int FacilityWidth = 20;

GApplicationAddons *alive = nullptr;

int number(const char *digits)
{
    return QString::fromLatin1(digits).trimmed().toInt(nullptr, 10);
}

} // namespace

const QString GApplicationAddons::di_UrlProvider = QStringLiteral("GApplication::UrlProvider");
QString GApplicationAddons::mResourcesDir;

GApplicationAddons::GApplicationAddons(bool hasTrackingAgreement, const QString &applicationName,
                                       const QString &shortName)
    : m_fileAssociations(std::make_unique<GFileAssociationHandler>()),
      m_urlProvider(DI::newObject1<GUrlProvider, GUrlProvider>(di_UrlProvider, applicationName)),
      m_shortName(shortName), m_hasTrackingAgreement(hasTrackingAgreement)
{
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    GUrlProvider::setResourcesDirectorySource(&GApplicationAddons::resourcesDirectory);
    alive = this;
}

GApplicationAddons::~GApplicationAddons()
{
    if (alive == this)
        alive = nullptr;
}

GApplicationAddons *GApplicationAddons::addons()
{
    return alive;
}

void GApplicationAddons::basicInitialization()
{
    // Ten days: in effect Qt never polls the network interfaces.
    qputenv("QT_BEARER_POLL_TIMEOUT", "864000000");
    qputenv("QML_BAD_GUI_RENDER_LOOP", "yes");
    qputenv("QT_QUICK_BACKEND", "software");
    QtApplication::scaleWithScreens();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL, false);
    QCoreApplication::setAttribute(Qt::AA_UseOpenGLES);
    theLogServer()->setGlobalLogLevel(LogLevel::Warning | LogLevel::Critical);
    theLogServer()->setFacilityWidth(FacilityWidth);
    qInstallMessageHandler(&GDebug::redirectQDebug);
}

QDate GApplicationAddons::buildDate()
{
    return QDate(number(BuildConfig::BuildYear), number(BuildConfig::BuildMonth),
                 number(BuildConfig::BuildDay));
}

QPixmap GApplicationAddons::updaterPixmap() const
{
    return QPixmap();
}

QDir GApplicationAddons::resourcesDirectory()
{
    if (!mResourcesDir.isEmpty())
        return QDir(mResourcesDir);
    return QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources"));
}

void GApplicationAddons::setResourcesDirectory(const QString &path)
{
    mResourcesDir = path;
}
