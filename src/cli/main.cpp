#include "base/BuildConfig.h"
#include "base/FileNameEncoding.h"
#include "base/GDebug.h"
#include "base/GTranslationLoader.h"
#include "cli/Companion.h"
#include "cli/RawName.h"
#include <algorithm>
#include <memory>
#include <QGuiApplication>

// Q_INIT_RESOURCE declares what it calls in the namespace around it, so this is outside of one.
static void loadTranslations(QCoreApplication &app)
{
    Q_INIT_RESOURCE(tnw_translations);
    Q_INIT_RESOURCE(translations);
    GTranslationLoader::instance()->setTranslations(&app);
}

namespace {

constexpr int CriticalMessagesOnly = 4;

/**
 * Only a scan paints pixmaps and only a sheet has fonts, which need the classes around
 * windows; these make a runtime folder for the user where there is none, and all other
 * commands leave no trace.
 */
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const auto has = [&](const char *argument) {
        return std::any_of(argv + 1, argv + argc,
                           [&](const char *given) { return qstrcmp(given, argument) == 0; });
    };
    if ((has("scan") && !has("--dry-run")) || has("sheet"))
        return std::make_unique<QGuiApplication>(argc, argv);
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    FileNameEncoding::useUtf8();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    theLogServer()->setGlobalLogLevel(CriticalMessagesOnly);
    qInstallMessageHandler(GDebug::redirectQDebug);

    const auto app = makeApplication(argc, argv);
    // The names of the program itself: settings and catalogue are shared with it.
    QCoreApplication::setApplicationName(QStringLiteral("Hoopline Organizer"));
    QCoreApplication::setOrganizationName(QLatin1String(BuildConfig::Organisation));
    QCoreApplication::setApplicationVersion(QLatin1String(BuildConfig::Version));
    loadTranslations(*app);
    // Qt's own list has lost what is no text.
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(RawName::decoded(argv[i]));
    return Companion().run(arguments);
}
