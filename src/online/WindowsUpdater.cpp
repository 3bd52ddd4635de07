#include "online/WindowsUpdater.h"

#include "base/GSettings.h"
#include "online/metrics/ReplyLimits.h"
#include "online/NetworkTrouble.h"
#include "online/services/GUrlProvider.h"
#include "online/UpdateDialog.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/StatusActivity.h"

#include <QApplication>
#include <QAuthenticator>
#include <QFutureWatcher>
#include <QInputDialog>
#include <QMainWindow>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QtConcurrent>
#include <QTimer>

namespace {

constexpr auto QueryOnly = QNetworkRequest::User;
constexpr auto Interactive = QNetworkRequest::Attribute(QNetworkRequest::User + 1);
constexpr auto IgnoreSkipped = QNetworkRequest::Attribute(QNetworkRequest::User + 2);

constexpr int MaxLoggedBody = 2048;
constexpr int BusyDelay = 500; // milliseconds

bool attribute(const QNetworkReply *reply, QNetworkRequest::Attribute name)
{
    return reply->request().attribute(name).toBool();
}

// Not the active window, which may be a dialog about to go or belong to another program.
QWidget *mainWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QMainWindow *>(widget) && widget->isVisible())
            return widget;
    }
    return nullptr;
}

/** As long as there is @p work. */
void tellActivity(QObject *work)
{
    new StatusActivity(mainWindow(), WindowsUpdater::tr("Checking for updates..."), work);
}

} // namespace

WindowsUpdater::WindowsUpdater() : m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::finished, this, &WindowsUpdater::replyFinished);
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this,
            &WindowsUpdater::authenticationRequired);
    // The end of the program still turns the event loop; a late answer has nobody to ask.
    connect(qApp, &QCoreApplication::aboutToQuit, m_manager, [this] {
        m_manager->disconnect(this);
        qDeleteAll(m_manager->findChildren<QFutureWatcherBase *>());
    });
}

WindowsUpdater::~WindowsUpdater()
{
    delete m_dialog;
}

void WindowsUpdater::checkForUpdates()
{
    startNetworkRequest(false, false, false);
}

void WindowsUpdater::checkForUpdatesMenuItem()
{
    startNetworkRequest(false, true, true);
}

void WindowsUpdater::queryOnly()
{
    if (autoUpdatesEnabled())
        startNetworkRequest(true, false, false);
}

void WindowsUpdater::startNetworkRequest(bool queryOnly, bool interactive, bool ignoreSkipped)
{
    const QUrl url = getUpdateUrl();
    if ((queryOnly && url == m_lastUrl) || (interactive && m_awaited))
        return;
    if (interactive && GUrlProvider::leadsNowhere(url)) {
        tellThereIsNoServer();
        return;
    }
    m_lastUrl = url;
    QNetworkRequest request(url);
    request.setAttribute(QueryOnly, queryOnly);
    request.setAttribute(Interactive, interactive);
    request.setAttribute(IgnoreSkipped, ignoreSkipped);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/xml"));
    ReplyLimits::prepare(request);
    QNetworkReply *reply = m_manager->post(request, QByteArray());
    ReplyLimits::apply(reply);
    tellActivity(reply);
    if (interactive)
        m_awaited = reply;
}

void WindowsUpdater::replyFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    if (attribute(reply, QueryOnly))
        return;
    const bool failed = reply->error() != QNetworkReply::NoError;
    parseXML(failed ? QByteArray() : reply->readAll(), attribute(reply, IgnoreSkipped),
             attribute(reply, Interactive), NetworkTrouble::explain(*reply));
}

void WindowsUpdater::parseXML(const QByteArray &data, bool ignoreSkipped, bool interactive,
                              const QString &explanation)
{
    auto *watcher = new QFutureWatcher<UpdateFeed>(m_manager);
    tellActivity(watcher);
    connect(watcher, &QFutureWatcher<UpdateFeed>::finished, this, [=] {
        watcher->deleteLater();
        const UpdateFeed feed = watcher->result();
        if (feed.problem == UpdateFeed::NoXml)
            qWarning("Update feed: %s", data.left(MaxLoggedBody).constData());
        report(feed, ignoreSkipped, interactive, explanation);
    });
    // A feed may take its time, which is not to be the window's.
    watcher->setFuture(
        QtConcurrent::run(&UpdateFeed::read, data, QCoreApplication::applicationVersion()));
}

void WindowsUpdater::report(const UpdateFeed &feed, bool ignoreSkipped, bool interactive,
                            const QString &explanation)
{
    if (feed.problem != UpdateFeed::NoProblem) {
        if (interactive)
            GMessageBox::critical(tr("Update check failed"), textOf(feed.problem), nullptr,
                                  explanation);
        return;
    }
    const AvailableUpdate &best = feed.newest;
    const bool skipped = GSettings().updaterSkippedVersions().contains(best.version);
    if (best.version == QCoreApplication::applicationVersion()) {
        if (interactive)
            GMessageBox::information(tr("No new updates available"),
                                     tr("There are no new updates available for %1")
                                         .arg(QGuiApplication::applicationDisplayName()));
        return;
    }
    if (!skipped || ignoreSkipped)
        offer(best);
}

void WindowsUpdater::tellThereIsNoServer()
{
    GMessageBox::information(tr("This copy cannot look for updates"),
                             tr("It was made without an address to ask. New versions come from "
                                "where you got this one."));
}

QString WindowsUpdater::textOf(UpdateFeed::Problem problem)
{
    switch (problem) {
    case UpdateFeed::NoProblem:
        break;
    case UpdateFeed::NoXml:
        return tr("Can't read app cast feed. (No XML)");
    case UpdateFeed::NotRss:
        return tr("Can't read app cast feed. (Not RSS)");
    case UpdateFeed::NoChannel:
        return tr("Can't read app cast feed. (No channel found)");
    }
    return QString();
}

void WindowsUpdater::offer(const AvailableUpdate &update)
{
    delete m_dialog;
    // What the user is busy with, a scan perhaps, comes first.
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(BusyDelay, this, [this, update] { offer(update); });
        return;
    }
    m_dialog = new UpdateDialog(update, mainWindow());
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->open();
}

void WindowsUpdater::authenticationRequired(QNetworkReply *, QAuthenticator *authenticator)
{
    GSettings settings;
    // Only the staging server has a reason to ask.
    if (!settings.useStagingServer())
        return;
    const QString title = tr("Staging server");
    const QString rejectedUser = authenticator->user();
    QString user = settings.stagingUser();
    QString password = settings.stagingPassword();
    const bool rejected = user == rejectedUser;
    bool entered = true;
    if (rejected || user.isEmpty()) {
        user = QInputDialog::getText(QApplication::activeWindow(), title, tr("Username:"),
                                     QLineEdit::Normal, user, &entered);
        if (!entered)
            return;
        settings.setStagingUser(user);
    }
    if (rejected || password.isEmpty()) {
        password = QInputDialog::getText(QApplication::activeWindow(), title, tr("Password:"),
                                         QLineEdit::Password, QString(), &entered);
        if (!entered)
            return;
        settings.setStagingPassword(password);
    }
    authenticator->setUser(user);
    authenticator->setPassword(password);
}
