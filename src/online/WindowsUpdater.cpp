#include "online/WindowsUpdater.h"

#include "base/GSettings.h"
#include "online/AvailableUpdate.h"
#include "online/metrics/ReplyLimits.h"
#include "online/services/VersionCompare.h"
#include "online/UpdateDialog.h"
#include "properties/xml/XmlTools.h"
#include "widgets/controls/GMessageBox.h"

#include <QApplication>
#include <QAuthenticator>
#include <QDomDocument>
#include <QInputDialog>
#include <QMainWindow>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTimer>

namespace {

constexpr auto QueryOnly = QNetworkRequest::User;
constexpr auto Interactive = QNetworkRequest::Attribute(QNetworkRequest::User + 1);
constexpr auto IgnoreSkipped = QNetworkRequest::Attribute(QNetworkRequest::User + 2);

constexpr int MaxLoggedBody = 2048;
constexpr int MaxVersionLength = 32;
constexpr int BusyDelay = 500; // milliseconds

bool attribute(const QNetworkReply *reply, QNetworkRequest::Attribute name)
{
    return reply->request().attribute(name).toBool();
}

// What bears no version, or none that could be one, is passed over.
bool isRelease(const QDomElement &item)
{
    const QString version = item.firstChildElement(QStringLiteral("enclosure"))
                                .attribute(QStringLiteral("sparkle:version"));
    return version.contains(QRegularExpression(QStringLiteral("[0-9]"))) &&
           version.size() <= MaxVersionLength;
}

AvailableUpdate release(const QDomElement &item)
{
    const QDomElement enclosure = item.firstChildElement(QStringLiteral("enclosure"));
    const auto text = [&item](const QString &name) {
        return item.firstChildElement(name).text().trimmed();
    };
    AvailableUpdate update;
    update.version = enclosure.attribute(QStringLiteral("sparkle:version"));
    update.title = text(QStringLiteral("title"));
    update.releaseDate =
        QDate::fromString(text(QStringLiteral("tnw:releaseDate")), QStringLiteral("yyyy-MM-dd"));
    update.releaseNotes = QUrl(text(QStringLiteral("sparkle:releaseNotesLink")), QUrl::StrictMode);
    update.download = QUrl(enclosure.attribute(QStringLiteral("url")), QUrl::StrictMode);
    return update;
}

AvailableUpdate newestRelease(const QDomElement &channel)
{
    const QString itemTag = QStringLiteral("item");
    AvailableUpdate best;
    best.version = QCoreApplication::applicationVersion();
    for (QDomElement item = channel.firstChildElement(itemTag); !item.isNull();
         item = item.nextSiblingElement(itemTag)) {
        if (!isRelease(item))
            continue;
        const AvailableUpdate candidate = release(item);
        if (VersionCompare::compare(candidate.version, best.version) == 1)
            best = candidate;
    }
    return best;
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

} // namespace

WindowsUpdater::WindowsUpdater() : m_manager(new QNetworkAccessManager(this))
{
    connect(m_manager, &QNetworkAccessManager::finished, this, &WindowsUpdater::replyFinished);
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this,
            &WindowsUpdater::authenticationRequired);
    // The end of the program still turns the event loop; a late answer has nobody to ask.
    connect(qApp, &QCoreApplication::aboutToQuit, m_manager,
            [this] { m_manager->disconnect(this); });
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
    if (queryOnly && url == m_lastUrl)
        return;
    m_lastUrl = url;
    QNetworkRequest request(url);
    request.setAttribute(QueryOnly, queryOnly);
    request.setAttribute(Interactive, interactive);
    request.setAttribute(IgnoreSkipped, ignoreSkipped);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/xml"));
    ReplyLimits::prepare(request);
    ReplyLimits::apply(m_manager->post(request, QByteArray()));
}

void WindowsUpdater::replyFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    if (attribute(reply, QueryOnly))
        return;
    const bool failed = reply->error() != QNetworkReply::NoError;
    parseXML(failed ? QByteArray() : reply->readAll(), attribute(reply, IgnoreSkipped),
             attribute(reply, Interactive));
}

void WindowsUpdater::parseXML(const QByteArray &data, bool ignoreSkipped, bool interactive)
{
    const auto fail = [interactive](const QString &reason) {
        if (interactive)
            GMessageBox::critical(tr("Update check failed"), reason);
    };
    QDomDocument document;
    if (!XmlTools::parseAnyEncoding(document, data, nullptr)) {
        qWarning("Update feed: %s", data.left(MaxLoggedBody).constData());
        return fail(tr("Can't read app cast feed. (No XML)"));
    }
    const QDomElement rss = document.firstChildElement(QStringLiteral("rss"));
    if (rss.isNull())
        return fail(tr("Can't read app cast feed. (Not RSS)"));
    const QDomElement channel = rss.firstChildElement(QStringLiteral("channel"));
    if (channel.isNull())
        return fail(tr("Can't read app cast feed. (No channel found)"));

    const AvailableUpdate best = newestRelease(channel);
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
