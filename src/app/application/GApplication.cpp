#include "app/application/GApplication.h"

#include "app/addons/GFileAssociationHandler.h"
#include "app/application/GMainWindow.h"
#include "app/frame/GFileTypeRegistry.h"
#include "base/BuildConfig.h"
#include "base/Error.h"
#include "base/files/PrivateAccess.h"
#include "base/GDebug.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "base/qt/Application.h"
#include "online/BreakpadCrashHandler.h"
#include "online/FeedbackDialog.h"
#include "online/services/GUrlProvider.h"
#include "widgets/controls/UrlOpener.h"
#include "widgets/style/TnwMacStyle.h"

#include <cstdlib>
#include <QDir>
#include <QMessageBox>
#include <QTimer>

GApplication::GApplication(int &argc, char **argv, const QString &applicationName,
                           const QString &version, const QString &shortName, bool singleWindowMode)
    : QApplication(argc, argv), GApplicationAddons(true, applicationName, shortName),
      m_singleWindowMode(singleWindowMode)
{
    setApplicationName(applicationName);
    setApplicationVersion(version);
    setApplicationDisplayName(applicationName);
    setOrganizationName(QString::fromLatin1(BuildConfig::Organisation));
    GUrlProvider::setDataFormatSource([] {
        const GMainWindow *window = currentWindow();
        return window ? window->currentDataFormat() : QString();
    });
    theFileTypeRegistry().setFileAssociationHandler(fileAssociationHandler());
    GTranslationLoader::instance()->setTranslations(this);
    installNativeEventFilter(this);
    new UrlOpener(this);
    setStyle(new TnwMacStyle);
    connect(this, &GApplication::criticalError, this, &GApplication::displayCriticalError);
    if (arguments().contains(QStringLiteral("--report-crash"))) {
        FeedbackDialog::presentDialogIfCrashed();
        std::exit(EXIT_FAILURE);
    }
    BreakpadCrashHandler::install();
    QtApplication::useFinePixmaps();
    setQuitOnLastWindowClosed(false);
    prepareToQuit();
    createApplicationLevelActions();
    connect(&m_recentFileProvider, &GRecentFileProvider::loadFile, this, &GApplication::openFile);
    connect(&m_recentFileProvider, &GRecentFileProvider::fileListRefreshed, this,
            &GApplication::recentFileListRefreshed);
    m_recentFileProvider.updateRecentFileActions({});
    recentFileListRefreshed();
    m_windowMenu = std::make_unique<QMenu>(tr("&Window"));
    connect(m_windowMenu.get(), &QMenu::aboutToShow, this, &GApplication::updateWindowMenu);
    m_firstStart = GSettings().getAndSetFirstStart();
    PrivateAccess::takeFromOthers(GSettings().fileName());
    QDir::setCurrent(QDir::homePath());
    QTimer::singleShot(0, this, &GApplication::createApplicationLevelMenuBar);
}

GApplication::~GApplication()
{
    theFileTypeRegistry().setFileAssociationHandler(nullptr);
    GUrlProvider::setDataFormatSource({});
    removeNativeEventFilter(this);
}

GApplication *GApplication::instance()
{
    return qobject_cast<GApplication *>(QCoreApplication::instance());
}

bool GApplication::nativeEventFilter(const QByteArray &eventType, void *message,
                                     QtEvents::NativeResult *result)
{
    bool taken = false;
    guarded(
        [&] { taken = fileAssociationHandler()->nativeEventFilter(eventType, message, result); });
    return taken;
}

bool GApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        reportCaught();
    }
    return false;
}

void GApplication::reportCaught() noexcept
{
    try {
        try {
            throw;
        } catch (const Error &error) {
            reportError(error);
        } catch (const std::exception &exception) {
            reportException(exception);
        } catch (...) {
            logUnknownException();
        }
    } catch (...) {
        // Nothing is left to tell it with.
    }
}

void GApplication::reportError(const Error &error)
{
    emit criticalError(
        tr("Caught unhandled error:<br/>%1<br/>").arg(error.toString().toHtmlEscaped()));
}

void GApplication::reportException(const std::exception &exception)
{
    const QString address = QString::fromLatin1(BuildConfig::SupportMail);
    emit criticalError(tr("Caught unhandled exception:<br/>%1<br/>")
                           .arg(QString::fromLocal8Bit(exception.what()).toHtmlEscaped()) +
                       tr("Please report to ") +
                       QStringLiteral("<a href=\"mailto:%1\">%1</a>").arg(address));
}

void GApplication::logUnknownException()
{
    gWarning("GApplication") << "Caught unhandled exception of unknown type. Please report to"
                             << BuildConfig::SupportMail;
}

void GApplication::displayCriticalError(const QString &text)
{
    QMessageBox::critical(nullptr, tr("Critical Exception"), text);
}

int GApplication::mainWindowCount() const
{
    return m_mainWindows.size();
}

GMainWindow *GApplication::currentWindow()
{
    return qobject_cast<GMainWindow *>(activeWindow());
}

bool GApplication::isFirstStart() const
{
    return m_firstStart;
}

bool GApplication::isStartingUp() const
{
    return m_startingUp;
}

ErrorCollector &GApplication::errorCollector()
{
    return m_errorCollector;
}

GRecentFileProvider *GApplication::recentFileProvider()
{
    return &m_recentFileProvider;
}

void GApplication::finalizeStartup()
{
    processEvents();
    m_startingUp = false;
    const QStringList names = std::exchange(m_filesToOpen, {});
    for (const QString &name : names)
        openFile(name);
}

void GApplication::onClickOnDock()
{
    if (m_startingUp)
        return;
    bool found = false;
    const QWidgetList widgets = topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<GMainWindow *>(widget)) {
            window->showRaiseActivateWindow();
            found = true;
        }
    }
    if (!found)
        newDocument();
}
