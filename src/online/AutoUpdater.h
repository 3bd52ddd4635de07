#pragma once

#include <QUrl>

/**
 * Looks for newer releases of the program. One object of it exists, reached
 * through theAutoUpdater(). Main thread only.
 */
class AutoUpdater
{
public:
    AutoUpdater();
    virtual ~AutoUpdater();

    AutoUpdater(const AutoUpdater &) = delete;
    AutoUpdater &operator=(const AutoUpdater &) = delete;

    /** Checks in the background; only a newer version makes itself known. */
    virtual void checkForUpdates() = 0;
    /** Checks because the user asked, and tells the outcome in any case. */
    virtual void checkForUpdatesMenuItem() = 0;
    /** Lets the server count the start, and ignores its answer. */
    virtual void queryOnly() = 0;

    virtual bool autoUpdatesEnabled() const;
    virtual void setAutoUpdates(bool enabled);
    /** Always true in a beta build. */
    virtual bool betaUpdatesEnabled() const;
    virtual void setBetaUpdatesEnabled(bool enabled);

    /** Where the feed is; invalid while there is no application object. */
    QUrl getUpdateUrl() const;

private:
    static AutoUpdater *instance;
    friend AutoUpdater *theAutoUpdater();
};

/** Null while there is none. */
AutoUpdater *theAutoUpdater();
