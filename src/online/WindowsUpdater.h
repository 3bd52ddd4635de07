#pragma once

#include "online/AutoUpdater.h"
#include "online/UpdateFeed.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>

class QAuthenticator;
class QNetworkAccessManager;
class QNetworkReply;
class UpdateDialog;

/**
 * Reads the feed of releases, on every platform, and offers what is newer. A
 * background check fails in silence; an interactive one reports.
 */
class WindowsUpdater : public QObject, public AutoUpdater
{
    Q_OBJECT

public:
    WindowsUpdater();
    ~WindowsUpdater() override;

    void checkForUpdates() override;
    void checkForUpdatesMenuItem() override;
    void queryOnly() override;

private slots:
    void replyFinished(QNetworkReply *reply);
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *authenticator);

private:
    void startNetworkRequest(bool queryOnly, bool interactive, bool ignoreSkipped);
    void parseXML(const QByteArray &data, bool ignoreSkipped, bool interactive,
                  const QString &explanation);
    void report(const UpdateFeed &feed, bool ignoreSkipped, bool interactive,
                const QString &explanation);
    static void tellThereIsNoServer();
    static QString textOf(UpdateFeed::Problem problem);
    void offer(const AvailableUpdate &update);

    QNetworkAccessManager *m_manager;
    QUrl m_lastUrl;
    QPointer<QNetworkReply> m_awaited; ///< by a user; one answer is enough for several clicks
    QPointer<UpdateDialog> m_dialog;
};
