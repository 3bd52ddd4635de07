#include "app/application/GApplication.h"

#include "app/addons/GFileAssociationHandler.h"
#include "app/application/GMainWindow.h"
#include "app/frame/GFileTypeRegistry.h"
#include "base/BuildConfig.h"
#include "base/Error.h"
#include "base/GDebug.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/BreakpadCrashHandler.h"
#include "online/FeedbackDialog.h"
#include "online/services/GUrlProvider.h"
#include "widgets/style/TnwMacStyle.h"

#include <cstdlib>
#include <QDir>
#include <QFileOpenEvent>
#include <QMessageBox>
#include <QTimer>

#ifdef Q_OS_MACOS
#include <QColorDialog>
#endif

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
    setStyle(new TnwMacStyle);
    connect(this, &GApplication::criticalError, this, &GApplication::displayCriticalError);
    if (arguments().contains(QStringLiteral("--report-crash"))) {
        FeedbackDialog::presentDialogIfCrashed();
        std::exit(EXIT_FAILURE);
    }
    BreakpadCrashHandler::install();
    setAttribute(Qt::AA_UseHighDpiPixmaps);
    setQuitOnLastWindowClosed(false);
    createApplicationLevelActions();
    connect(&m_recentFileProvider, &GRecentFileProvider::loadFile, this, &GApplication::openFile);
    connect(&m_recentFileProvider, &GRecentFileProvider::fileListRefreshed, this,
            &GApplication::recentFileListRefreshed);
    m_recentFileProvider.updateRecentFileActions({});
    recentFileListRefreshed();
    m_windowMenu = std::make_unique<QMenu>(tr("&Window"));
    connect(m_windowMenu.get(), &QMenu::aboutToShow, this, &GApplication::updateWindowMenu);
    m_firstStart = GSettings().getAndSetFirstStart();
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

bool GApplication::nativeEventFilter(const QByteArray &eventType, void *message, long *result)
{
    return fileAssociationHandler()->nativeEventFilter(eventType, message, result);
}

bool GApplication::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Close:
        closeAllWindowsAndQuit();
        event->ignore();
        return true;
    case QEvent::ApplicationActivate:
        emit activate();
        break;
    case QEvent::FileOpen:
        openFile(static_cast<QFileOpenEvent *>(event)->file());
        return true;
    default:
        break;
    }
    return QApplication::event(event);
}

bool GApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const Error &error) {
        emit criticalError(
            tr("Caught unhandled error:<br/>%1<br/>").arg(error.toString().toHtmlEscaped()));
    } catch (const std::exception &exception) {
        reportException(exception);
    } catch (...) {
        logUnknownException();
    }
    return false;
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

void GApplication::registerMainWindow(GMainWindow *window)
{
    m_mainWindows.append(window);
    updateWindowMenu();
}

void GApplication::unregisterMainWindow(GMainWindow *window)
{
    m_mainWindows.removeOne(window);
    if (m_quitting && m_mainWindows.isEmpty())
        quit();
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

bool GApplication::closeAllWindowsAndQuit()
{
#ifdef Q_OS_MACOS
    // Dismisses the colour panel of the platform, which would keep the program alive.
    {
        QColorDialog panel;
        panel.setOption(QColorDialog::NoButtons);
        panel.setCurrentColor(Qt::white);
    }
#endif
    const QList<GMainWindow *> windows = m_mainWindows;
    for (GMainWindow *window : windows) {
        if (!window->closeWindow())
            return false;
    }
    m_quitting = true;
    if (m_mainWindows.isEmpty())
        quit();
    return true;
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
