#include "online/AutoUpdater.h"

#include "app/addons/GApplicationAddons.h"
#include "base/BuildConfig.h"
#include "base/GSettings.h"
#include "online/services/GUrlProvider.h"

#include <QtDebug>

AutoUpdater *AutoUpdater::instance = nullptr;

AutoUpdater::AutoUpdater()
{
    if (instance)
        qCritical("AutoUpdater already initialised");
    instance = this;
}

AutoUpdater::~AutoUpdater()
{
    if (instance == this)
        instance = nullptr;
}

bool AutoUpdater::autoUpdatesEnabled() const
{
    return GSettings().autoUpdatesEnabled();
}

void AutoUpdater::setAutoUpdates(bool enabled)
{
    GSettings().setAutoUpdatesEnabled(enabled);
}

bool AutoUpdater::betaUpdatesEnabled() const
{
    return *BuildConfig::BetaTag != '\0' || GSettings().betaUpdatesEnabled();
}

void AutoUpdater::setBetaUpdatesEnabled(bool enabled)
{
    GSettings().setBetaUpdatesEnabled(enabled);
}

QUrl AutoUpdater::getUpdateUrl() const
{
    const GApplicationAddons *addons = GApplicationAddons::addons();
    return addons ? addons->urlProvider()->updateCheckUrl(betaUpdatesEnabled()) : QUrl();
}

AutoUpdater *theAutoUpdater()
{
    return AutoUpdater::instance;
}
