#include "app/application/SingleApplication.h"
#include "app/application/TerminationSignals.h"
#include "base/DependencyRegistry.h"
#include "base/ExitDeadline.h"
#include "base/FileNameEncoding.h"
#include "base/GLogServer.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/metrics/Metrics.h"
#include "ui/MainWindow.h"
#include "ui/PreferencesDialog.h"
#include "widgets/controls/About2.h"
#include "widgets/style/WidgetStyles.h"

#include <cstdio>

namespace {

constexpr int InstanceTimeout = 1000; // milliseconds
// As long as the metrics may wait; all that is worth keeping is stored by then.
constexpr std::chrono::milliseconds ExitLimit(2000);
constexpr int AboutBannerWidth = 300; // pixels
constexpr int LogEverything = 0x7fffffff;

} // namespace

// Q_INIT_RESOURCE declares what it calls in the namespace around it, so these are outside of one.
static void initializeFrame()
{
    FileNameEncoding::useUtf8();
    GApplicationAddons::basicInitialization();
    Q_INIT_RESOURCE(tnw_resources);
    theDependencyRegistry()->setConstructorWith1ParameterForRole<QDialog, About2, QWidget *>(
        GApplication::di_AboutDialog);
    About2::configure(WidgetStyles::Primary800, AboutBannerWidth);
}

static void initializeProduct()
{
    theLogServer()->setGlobalLogLevel(LogEverything);
    Q_INIT_RESOURCE(hoopline_resources);
    Q_INIT_RESOURCE(tnw_translations);
    Q_INIT_RESOURCE(translations);

    HooplineApplication::setWindowFactory([] { return new MainWindow; });
    HooplineApplication::setPreferencesPresenter(
        [](QWidget *parent) { PreferencesDialog(parent).exec(); });
}

namespace {

void flushSettings()
{
    std::puts("Flushing all settings");
    GSettings().flushSettings({});
}

// The application object must be gone before the metrics client is.
int runApplication(int argc, char **argv)
{
    using Mode = SingleApplication::Mode;
    SingleApplication app(argc, argv, false,
                          Mode::User | Mode::ExcludeAppVersion | Mode::ExcludeAppPath,
                          InstanceTimeout);
    GTranslationLoader::instance()->setTranslations(&app);
    QObject::connect(&app, &SingleApplication::instanceStarted, &app, &GApplication::onClickOnDock);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("--flushsettings"))) {
        flushSettings();
        return 0;
    }
    Metrics::createInstance(QStringLiteral("40817263"));
    if (arguments.contains(QStringLiteral("--do-not-track")))
        Metrics::instance()->setDoNotTrack(true);
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &app,
                     &GApplication::quitWhenIdle);
    const int result = app.exec();
    ExitDeadline::start(ExitLimit, result);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    initializeFrame();
    initializeProduct();
    const int result = runApplication(argc, argv);
    Metrics::deleteInstance();
    return result;
}
