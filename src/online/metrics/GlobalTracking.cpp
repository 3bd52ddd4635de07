#include "online/metrics/GlobalTracking.h"

#include "base/GlobalSettings.h"
#include "online/metrics/Metrics.h"
#include "online/services/SystemInquiry.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>

void GlobalTracking::applicationStarted()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() : QSize(0, 0);
    const SystemInquiry *system = theSystemInquiry();
    const qint64 days = GSettings().firstStartDate().daysTo(QDate::currentDate());
    Metrics::submitEvent(QStringLiteral("hl start"),
                         {{QStringLiteral("version"), QCoreApplication::applicationVersion()},
                          {QStringLiteral("os"), system->osName()},
                          {QStringLiteral("os version"), system->osVersion()},
                          {QStringLiteral("system memory"), system->systemMemoryMB()},
                          {QStringLiteral("cpu cores"), QThread::idealThreadCount()},
                          {QStringLiteral("screen width"), size.width()},
                          {QStringLiteral("screen height"), size.height()},
                          {QStringLiteral("days installed"), int(days)}});
}

void GlobalTracking::aboutToQuit()
{
    Metrics *metrics = Metrics::instance();
    if (!metrics)
        return;
    Metrics::submitEvent(QStringLiteral("hl quit"), {{QStringLiteral("grid scale factor"),
                                                      GlobalSettings().gridScaleFactor()}});
    metrics->forceSync();
}
