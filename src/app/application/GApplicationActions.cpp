// The commands of GApplication and the menus that hold them.

#include "app/application/GApplication.h"
#include "app/application/GMainWindow.h"
#include "app/frame/GAction.h"
#include "base/DI.h"
#include "online/services/GUrlProvider.h"
#include "widgets/controls/About.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/style/GIcon.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>

#ifdef _MSC_VER
#include <intrin.h>
#endif

namespace {

void trap()
{
#ifdef _MSC_VER
    __debugbreak();
#else
    __builtin_trap();
#endif
}

} // namespace

const QString GApplication::di_AboutDialog = QStringLiteral("GApplication::AboutDialog");

void GApplication::createApplicationLevelActions()
{
    const auto create = [this](const QString &text, const QString &tip, const char *slot,
                               const QString &icon = QString()) {
        auto *action = new GAction(text, this, slot);
        action->setStatusTip(tip);
        if (!icon.isEmpty())
            action->setIcon(GIcon(icon));
        return action;
    };
    m_newAction = create(tr("&New project"), tr("Create a new project"), SLOT(newDocument()),
                         QStringLiteral(":/tnw_tools/icons/Icons_New.svg"));
    m_newAction->setShortcut(QKeySequence::New);
    m_openAction = create(tr("&Open project..."), tr("Open an existing project"),
                          SLOT(openDocument()), QStringLiteral(":/tnw_tools/icons/Icons_Open.svg"));
    m_openAction->setShortcut(QKeySequence::Open);
    m_preferencesAction = create(tr("Preferences..."), tr("Preferences"), SLOT(showPreferences()));
    m_preferencesAction->setMenuRole(QAction::PreferencesRole);
    m_aboutAction = create(tr("&About %1").arg(applicationName()),
                           tr("Show the application's About box"), SLOT(showAbout()));
    m_aboutAction->setMenuRole(QAction::AboutRole);
    m_documentationAction =
        create(tr("Documentation..."), tr("Documentation"), SLOT(showDocumentation()));
    m_documentationAction->setObjectName(QStringLiteral("documentation"));
    m_tutorialsAction = create(tr("Tutorials..."), tr("Tutorials"), SLOT(showTutorials()),
                               QStringLiteral(":/tnw_tools/icons/Icons_Tutorials.svg"));
    m_acknowledgementsAction =
        create(tr("Acknowledgements..."), tr("Acknowledgements"), SLOT(showAcknowledgements()));
    m_feedbackAction =
        create(tr("Send feedback ..."), tr("Send feedback, feature requests, bug reports"),
               SLOT(showFeedbackDialog()));
    m_feedbackAction->setObjectName(QStringLiteral("feedback"));
    m_updateCheckAction =
        create(tr("Check for updates ..."), tr("Check for updates"), SLOT(updateCheck()));
}

QList<GAction *> GApplication::applicationMenuActions() const
{
    return {m_aboutAction, m_preferencesAction};
}

QList<GAction *> GApplication::applicationLevelFileActions() const
{
    if (m_singleWindowMode)
        return {};
    return {m_newAction, m_openAction};
}

QList<GAction *> GApplication::applicationLevelHelpActions() const
{
    return {m_documentationAction, m_tutorialsAction, m_acknowledgementsAction, m_feedbackAction,
            m_updateCheckAction};
}

QList<GAction *> GApplication::applicationLevelToolbarActions() const
{
    return GApplication::applicationLevelFileActions();
}

GAction *GApplication::aboutAction() const
{
    return m_aboutAction;
}

GAction *GApplication::preferencesAction() const
{
    return m_preferencesAction;
}

GAction *GApplication::tutorialsAction() const
{
    return m_tutorialsAction;
}

QMenu *GApplication::windowMenu() const
{
    return m_windowMenu.get();
}

void GApplication::createApplicationLevelMenuBar()
{
    m_menuBar = std::make_unique<QMenuBar>();
    m_menuBar->setNativeMenuBar(true);
    QMenu *fileMenu = m_menuBar->addMenu(tr("&File"));
    const QList<GAction *> fileActions = applicationLevelFileActions();
    for (GAction *action : fileActions)
        fileMenu->addAction(action);
    if (!m_singleWindowMode) {
        m_recentFileProvider.addRecentMenuActions(fileMenu->addMenu(tr("Open recent")));
        m_menuBar->addMenu(m_windowMenu.get());
    }
    QMenu *helpMenu = m_menuBar->addMenu(tr("&Help"));
    const QList<GAction *> helpActions = applicationLevelHelpActions();
    for (GAction *action : helpActions)
        helpMenu->addAction(action);
#ifdef Q_OS_MACOS
    // Their roles move these from any menu of the bar into the application menu.
    const QList<GAction *> menuActions = applicationMenuActions();
    for (GAction *action : menuActions)
        helpMenu->addAction(action);
#endif
}

void GApplication::updateWindowMenu()
{
    if (!m_windowMenu)
        return;
    qDeleteAll(m_windowActions);
    m_windowActions.clear();
    for (GMainWindow *window : std::as_const(m_mainWindows)) {
        const QString name = window->fileName();
        auto *action =
            new GAction(name.isEmpty() ? tr("untitled document") : name, m_windowMenu.get());
        if (window == activeWindow()) {
            action->setCheckable(true);
            action->setChecked(true);
        }
        connect(action, &QAction::triggered, window, &GMainWindow::showRaiseActivateWindow);
        m_windowMenu->addAction(action);
        m_windowActions.append(action);
    }
}

void GApplication::recentFileListRefreshed()
{
#ifdef Q_OS_MACOS
    auto *dockMenu = new QMenu;
    const QList<GAction *> recentActions = m_recentFileProvider.recentFileActions();
    for (GAction *action : recentActions) {
        if (action->isVisible())
            dockMenu->addAction(action);
    }
    if (!dockMenu->isEmpty())
        dockMenu->addSeparator();
    dockMenu->addAction(m_newAction);
    dockMenu->addAction(m_openAction);
    dockMenu->setAsDockMenu();
#endif
}

void GApplication::showAbout()
{
    // Exercises the road of a crash report on a real installation.
    if (qgetenv("tnw_trigger_crash") == "true")
        trap();
    const auto dialog = DI::newObject1<QDialog, About, QWidget *>(di_AboutDialog, nullptr);
    dialog->exec();
}

void GApplication::openHelp(const QUrl &page)
{
    if (!GUrlProvider::leadsNowhere(page)) {
        QDesktopServices::openUrl(page);
        return;
    }
    const QUrl manual = urlProvider()->manualUrl();
    const QString path = manual.toLocalFile();
    if (QFile::exists(path))
        QDesktopServices::openUrl(manual);
    else
        GMessageBox::information(tr("The manual is not installed."),
                                 tr("It should be here: %1\nThe packages of the program bring it "
                                    "along. Whoever builds the program needs the tool 'lowdown' "
                                    "for it.")
                                     .arg(QDir::toNativeSeparators(path)));
}

void GApplication::updateHelpActions()
{
    const QUrl url = urlProvider()->updateCheckUrl(false);
    m_updateCheckAction->setEnabled(!GUrlProvider::leadsNowhere(url));
}

void GApplication::showDocumentation()
{
    openHelp(urlProvider()->documentationUrl());
}

void GApplication::showTutorials()
{
    openHelp(urlProvider()->tutorialsUrl(false, QString()));
}

void GApplication::showAcknowledgements()
{
    QDesktopServices::openUrl(urlProvider()->acknowledgementsUrl());
}
