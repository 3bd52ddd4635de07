#include "app/application/HooplineApplication.h"

#include "app/application/GMainWindow.h"
#include "app/frame/GAction.h"
#include "base/BuildConfig.h"
#include "base/Error.h"
#include "base/qt/Application.h"
#include "online/FeedbackDialog.h"
#include "online/metrics/GlobalTracking.h"
#include "online/metrics/Metrics.h"
#include "online/WindowsUpdater.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/style/DesktopColorScheme.h"
#include "widgets/style/WidgetStyles.h"

#include <algorithm>
#include <QDir>
#include <QIcon>
#include <QTimer>
#include <utility>

namespace {

constexpr int NetworkDelay = 100;

HooplineApplication::WindowFactory &windowFactory()
{
    static HooplineApplication::WindowFactory factory;
    return factory;
}

HooplineApplication::PreferencesPresenter &preferencesPresenter()
{
    static HooplineApplication::PreferencesPresenter presenter;
    return presenter;
}

} // namespace

HooplineApplication::HooplineApplication(int &argc, char **argv)
    : GApplication(argc, argv, QStringLiteral("Hoopline Organizer"),
                   QString::fromLatin1(BuildConfig::Version), QStringLiteral("hl"), true)
{
    WidgetStyles::init();
    new DesktopColorScheme(this);
    QtApplication::leaveOutHelpButtons();
    setWindowIcon(QIcon(QStringLiteral(":/hoopline-mac.png")));
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    // There is no bundle that would have the documents beside the program.
    setResourcesDirectory(
        QDir::cleanPath(applicationDirPath() + QStringLiteral("/../share/hoopline-organizer")));
#endif
    m_updater = QSharedPointer<WindowsUpdater>::create();
    QTimer::singleShot(0, this, &HooplineApplication::launch);
}

HooplineApplication::~HooplineApplication()
{
    guarded([] { GlobalTracking::aboutToQuit(); });
}

HooplineApplication *HooplineApplication::instance()
{
    return qobject_cast<HooplineApplication *>(GApplication::instance());
}

void HooplineApplication::setWindowFactory(const WindowFactory &factory)
{
    windowFactory() = factory;
}

void HooplineApplication::setPreferencesPresenter(const PreferencesPresenter &presenter)
{
    preferencesPresenter() = presenter;
}

QList<GAction *> HooplineApplication::applicationLevelFileActions() const
{
    return {};
}

QList<GAction *> HooplineApplication::applicationLevelHelpActions() const
{
    QList<GAction *> actions = GApplication::applicationLevelHelpActions();
    const auto unwanted = [](const GAction *action) {
        return action->objectName() == QLatin1String("documentation") ||
               action->objectName() == QLatin1String("feedback");
    };
    actions.erase(std::remove_if(actions.begin(), actions.end(), unwanted), actions.end());
    return actions;
}

QList<GAction *> HooplineApplication::applicationLevelToolbarActions() const
{
    return {};
}

QPixmap HooplineApplication::updaterPixmap() const
{
    return QPixmap(QStringLiteral(":/hoopline.png"));
}

void HooplineApplication::reportError(const Error &error)
{
    // Also what a worker's event handler throws is shown by the thread that has the windows.
    const QString text = error.toString();
    QMetaObject::invokeMethod(this, [text] { GMessageBox::alert(tr("Error"), text); });
}

void HooplineApplication::emitSyncGlobalSettings()
{
    emit syncGlobalSettings();
}

void HooplineApplication::newDocument()
{
    if (mainWindowCount() != 0)
        return;
    try {
        if (GMainWindow *window = windowFactory()())
            window->show();
    } catch (const AbortException &) {
        closeAllWindowsAndQuit();
    }
}

void HooplineApplication::openUntyped(const QString &path)
{
    if (m_pathsToShow.isEmpty())
        QTimer::singleShot(0, this, &HooplineApplication::showPaths);
    m_pathsToShow.append(path);
}

void HooplineApplication::showPaths()
{
    const QStringList paths = std::exchange(m_pathsToShow, {});
    newDocument();
    if (!mainWindows().isEmpty())
        mainWindows().constFirst()->showPaths(paths);
}

void HooplineApplication::showPreferences()
{
    preferencesPresenter()(currentWindow());
}

void HooplineApplication::showFeedbackDialog()
{
    FeedbackDialog(currentWindow()).exec();
}

void HooplineApplication::updateCheck()
{
    theAutoUpdater()->checkForUpdatesMenuItem();
}

void HooplineApplication::launch()
{
    if (m_launchCancelled)
        return;
    GlobalTracking::applicationStarted();
    FeedbackDialog::presentDialogIfCrashed();
    try {
        GMainWindow *window = windowFactory()();
        if (!window) {
            closeAllWindowsAndQuit();
            return;
        }
        finalizeStartup();
        window->show();
        QTimer::singleShot(NetworkDelay, this, &HooplineApplication::launchAsyncNetworkTasks);
    } catch (const AbortException &) {
        closeAllWindowsAndQuit();
    } catch (const Error &error) {
        reportError(error);
        closeAllWindowsAndQuit();
    }
}

void HooplineApplication::launchAsyncNetworkTasks()
{
    if (m_updater->autoUpdatesEnabled())
        m_updater->checkForUpdates();
    if (Metrics *metrics = Metrics::instance())
        metrics->initNetworkAccessManager();
}
