#include "app/application/SingleApplication.h"
#include "app/application/TerminationSignals.h"
#include "app/ProgramArguments.h"
#include "base/BuildConfig.h"
#include "base/DependencyRegistry.h"
#include "base/ExitDeadline.h"
#include "base/FileNameEncoding.h"
#include "base/GLogServer.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/metrics/Metrics.h"
#include "ui/CatalogueWait.h"
#include "ui/MainWindow.h"
#include "ui/PreferencesDialog.h"
#include "widgets/controls/About2.h"
#include "widgets/style/WidgetStyles.h"

#include <cstdio>
#include <cstdlib>
#include <QFile>

namespace {

constexpr int InstanceTimeout = 1000; // milliseconds
// As long as the metrics may wait; all that is worth keeping is stored by then.
constexpr std::chrono::milliseconds ExitLimit(2000);
constexpr int AboutBannerWidth = 300; // pixels
constexpr int WrongUsage = 2;
constexpr int LogEverything = 0x7fffffff;

} // namespace

// Q_INIT_RESOURCE declares what it calls in the namespace around it, so these are outside of one.
static void initializeFrame()
{
    GApplicationAddons::basicInitialization();
    Q_INIT_RESOURCE(tnw_resources);
    theDependencyRegistry()->setConstructorWith1ParameterForRole<QDialog, About2, QWidget *>(
        GApplication::di_AboutDialog);
    About2::configure(WidgetStyles::Primary800, AboutBannerWidth);
}

static void initializeTranslations()
{
    Q_INIT_RESOURCE(tnw_translations);
    Q_INIT_RESOURCE(translations);
}

static void initializeProduct()
{
    theLogServer()->setGlobalLogLevel(LogEverything);
    Q_INIT_RESOURCE(hoopline_resources);
    initializeTranslations();

    HooplineApplication::setWindowFactory([]() -> GMainWindow * {
        // What a scan adds meanwhile must be there when the catalogue is loaded.
        FileLock &lock = SingleApplication::instance()->catalogueLock();
        if (!CatalogueWait::forLock(lock))
            return nullptr;
        auto *window = new MainWindow;
        // Its folder may not have been there before.
        lock.tryLock();
        return window;
    });
    HooplineApplication::setPreferencesPresenter([](QWidget *parent) {
        const auto *window = qobject_cast<MainWindow *>(parent);
        PreferencesDialog(parent, window ? window->memory() : nullptr).exec();
    });
}

namespace {

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    return arguments;
}

/** Answers on the terminal what needs no window. @return the exit status of the process */
int answer(int argc, char **argv, const ProgramArguments &arguments)
{
    initializeTranslations();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Hoopline Organizer"));
    QCoreApplication::setOrganizationName(QLatin1String(BuildConfig::Organisation));
    QCoreApplication::setApplicationVersion(QLatin1String(BuildConfig::Version));
    GTranslationLoader::instance()->setTranslations(&app);
    const bool refused = arguments.request() == ProgramArguments::Refusal;
    FILE *output = refused ? stderr : stdout;
    const bool written = std::fputs(arguments.answer().toUtf8().constData(), output) >= 0 &&
                         std::fflush(output) == 0;
    return refused ? WrongUsage : written ? EXIT_SUCCESS : EXIT_FAILURE;
}

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
    FileNameEncoding::useUtf8();
    const ProgramArguments arguments(argumentsOf(argc, argv));
    if (arguments.request() != ProgramArguments::Run)
        return answer(argc, argv, arguments);
    for (const QString &name : arguments.missing())
        std::fprintf(stderr, "hoopline-organizer: no such file or folder: %s\n", qPrintable(name));
    SingleApplication::setPathsToOpen(arguments.paths());
    initializeFrame();
    initializeProduct();
    const int result = runApplication(argc, argv);
    Metrics::deleteInstance();
    return result;
}
