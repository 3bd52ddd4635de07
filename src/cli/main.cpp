#include "base/BuildConfig.h"
#include "base/Error.h"
#include "base/FileNameEncoding.h"
#include "base/GDebug.h"
#include "base/GTranslationLoader.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "cli/InspectCommand.h"
#include "cli/ListCommand.h"
#include "cli/ScanCommand.h"
#include <exception>
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

int runWithoutCommand(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("hoopline-cli scan|inspect|list [options] [ARGUMENT...]"),
        QCoreApplication::translate(
            "main", "The companion of Hoopline Organizer that needs no window.\n"
                    "\n"
                    "Commands; each has a --help of its own:\n"
                    "  scan     Add folders to the catalogue, bring it into line with the disk.\n"
                    "  inspect  Read designs and tell about them.\n"
                    "  list     Print the designs of the catalogue."),
        arguments);
    if (!line.parse())
        return line.exitStatus();
    if (line.positionalArguments().isEmpty())
        return line.fail(QCoreApplication::translate("main", "No command given."));
    return line.fail(QCoreApplication::translate("main", "Unknown command '%1'.")
                         .arg(line.positionalArguments().constFirst()));
}

int run(QStringList arguments)
{
    arguments.removeFirst();
    const QString command = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (command == QLatin1String("scan"))
        return ScanCommand::run(rest);
    if (command == QLatin1String("inspect"))
        return InspectCommand::run(rest);
    if (command == QLatin1String("list"))
        return ListCommand::run(rest);
    return runWithoutCommand(arguments);
}

} // namespace

int main(int argc, char **argv)
{
    FileNameEncoding::useUtf8();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    theLogServer()->setGlobalLogLevel(CriticalMessagesOnly);
    qInstallMessageHandler(GDebug::redirectQDebug);

    QGuiApplication app(argc, argv);
    // The names of the program itself: settings and catalogue are shared with it.
    QCoreApplication::setApplicationName(QStringLiteral("Hoopline Organizer"));
    QCoreApplication::setOrganizationName(QLatin1String(BuildConfig::Organisation));
    QCoreApplication::setApplicationVersion(QLatin1String(BuildConfig::Version));
    loadTranslations(app);

    try {
        return run(app.arguments());
    } catch (const Error &error) {
        Console::reportError(error.toString());
    } catch (const std::exception &error) {
        Console::reportError(QString::fromLocal8Bit(error.what()));
    }
    return Failure;
}
