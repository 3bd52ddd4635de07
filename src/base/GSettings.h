#pragma once

#include <memory>
#include <QDate>
#include <QDateTime>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

/**
 * The persistent preferences. Made on the stack for one operation, on the main
 * thread, and never kept: QSettings does the caching, locking and writing.
 * The store is named by the application's organisation and name, unless
 * setIniFile() says otherwise. Nothing here fails: what cannot be read gives
 * its default.
 */
class GSettings
{
public:
    GSettings();
    virtual ~GSettings();

    GSettings(const GSettings &) = delete;
    GSettings &operator=(const GSettings &) = delete;

    /** Uses the INI file @p path from now on; an empty path goes back to the default store. */
    static void setIniFile(const QString &path);

    /** Where the store keeps what it holds. */
    QString fileName() const;

    /**
     * From now on nothing is stored or removed: for what must leave no trace. Values that
     * are decided on their first use are then decided anew at each.
     */
    static void setReadOnly(bool readOnly);

    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    void setValue(const QString &key, const QVariant &value);
    bool contains(const QString &key) const;
    void remove(const QString &key);
    void beginGroup(const QString &name);
    void endGroup();
    void sync();

    /** Removes every key that is not in @p keep. */
    void flushSettings(const QStringList &keep);

    /** True exactly once in the life of the store; notes the day of it. */
    bool getAndSetFirstStart();
    /** The day of the first start; invalid before it. */
    QDate firstStartDate() const;

    /** The current time when there was no check yet. */
    QDateTime crashLoggerLastCheck() const;
    void setCrashLoggerLastCheck(const QDateTime &time);

    static constexpr int MaxRecentFiles = 5;
    /** At most MaxRecentFiles names, the latest first. */
    QStringList recentFiles() const;
    void addRecentFile(const QString &name);
    QString lastFileName();

    bool betaUpdatesEnabled() const;
    void setBetaUpdatesEnabled(bool enabled);
    bool autoUpdatesEnabled() const;
    void setAutoUpdatesEnabled(bool enabled);
    QStringList updaterSkippedVersions() const;
    void addSkippedVersion(const QString &version);

    bool sendStatisticsEnabled() const;
    void setSendStatisticsEnabled(bool enabled);
    QString statisticsUUID() const;
    void setStatisticsUUID(const QString &uuid);

    /** Whether the user has seen an agreement of exactly this wording. */
    bool trackingAgreementPresented(const QString &text) const;
    void setTrackingAgreementPresented(const QString &text);

    bool useStagingServer() const;
    void setUseStagingServer(bool use);
    QString stagingUser() const;
    void setStagingUser(const QString &user);
    QString stagingPassword() const;
    void setStagingPassword(const QString &password);

    QString feedbackMailAddress() const;
    void setFeedbackMailAddress(const QString &address);

    /** Null when never asked. */
    QDateTime askForSharing() const;
    void setAskForSharing(const QDateTime &time);

    /** Language code chosen by the user; empty to follow the system. */
    QString uiLanguage() const;
    void setUiLanguage(const QString &language);

    bool hasTreatmentForTest(const QString &name);
    int treatmentForTest(const QString &name);
    void setTreatmentForTest(const QString &name, int value);

private:
    static void sweep(const QString &file);

    static QString mIniFile;
    static bool mReadOnly;
    std::unique_ptr<QSettings> m_settings;
};
