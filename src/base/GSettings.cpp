#include "base/GSettings.h"

#include "base/SettingsFormat.h"
#include "base/SettingsLeftovers.h"

#include <QCoreApplication>
#include <QCryptographicHash>

namespace {

const QString FirstStart = QStringLiteral("firstStart");
const QString FirstStartDate = QStringLiteral("firstStartDate");
const QString CrashLoggerLastCheck = QStringLiteral("crashlogger-last-check");
const QString RecentFileList = QStringLiteral("recentFileList");
const QString EnableBetaUpdates = QStringLiteral("enableBetaUpdates");
const QString AutoUpdatesEnabled = QStringLiteral("autoUpdatesEnabled");
const QString SkippedVersions = QStringLiteral("updater/skippedversions");
const QString SendStatisticsEnabled = QStringLiteral("sendStatisticsEnabled");
const QString StatisticsUuid = QStringLiteral("statisticsUUID");
const QString AgreementPresented = QStringLiteral("trackingAgreementPresented");
const QString UseStagingServer = QStringLiteral("useStagingServer");
const QString StagingUser = QStringLiteral("stagingUser");
const QString StagingPassword = QStringLiteral("stagingPassword");
const QString FeedbackMail = QStringLiteral("feedBack.mail");
const QString AskForSharing = QStringLiteral("askForSharing");
const QString UiLanguage = QStringLiteral("uiLanguage");
const QString TestGroup = QStringLiteral("test/");

QString digest(const QString &text)
{
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5);
    return QString::fromLatin1(hash.toHex());
}

} // namespace

QString GSettings::mIniFile;
bool GSettings::mReadOnly = false;

static std::unique_ptr<QSettings> openStore(const QString &iniFile)
{
    if (!iniFile.isEmpty())
        return std::make_unique<QSettings>(iniFile, SettingsFormat::format());
#ifdef Q_OS_MACOS
    return std::make_unique<QSettings>();
#else
    return std::make_unique<QSettings>(SettingsFormat::format(), QSettings::UserScope,
                                       QCoreApplication::organizationName(),
                                       QCoreApplication::applicationName());
#endif
}

GSettings::GSettings() : m_settings(openStore(mIniFile))
{
    sweep(fileName());
}

GSettings::~GSettings()
{
    const QString file = fileName();
    m_settings.reset();
    sweep(file);
}

/** A lock that the disk did not let go of would keep the next who writes waiting for it. */
void GSettings::sweep(const QString &file)
{
    if (!mReadOnly)
        SettingsLeftovers::remove(file);
}

QString GSettings::fileName() const
{
    return m_settings->fileName();
}

void GSettings::setIniFile(const QString &path)
{
    mIniFile = path;
}

void GSettings::setReadOnly(bool readOnly)
{
    mReadOnly = readOnly;
}

QVariant GSettings::value(const QString &key, const QVariant &defaultValue) const
{
    return m_settings->value(key, defaultValue);
}

void GSettings::setValue(const QString &key, const QVariant &value)
{
    if (!mReadOnly)
        m_settings->setValue(key, value);
}

bool GSettings::contains(const QString &key) const
{
    return m_settings->contains(key);
}

void GSettings::remove(const QString &key)
{
    if (!mReadOnly)
        m_settings->remove(key);
}

void GSettings::beginGroup(const QString &name)
{
    m_settings->beginGroup(name);
}

void GSettings::endGroup()
{
    m_settings->endGroup();
}

void GSettings::sync()
{
    m_settings->sync();
    sweep(fileName());
}

void GSettings::flushSettings(const QStringList &keep)
{
    const QStringList keys = m_settings->allKeys();
    for (const QString &key : keys) {
        if (!keep.contains(key))
            remove(key);
    }
}

bool GSettings::getAndSetFirstStart()
{
    const bool first = value(FirstStart, true).toBool();
    if (first) {
        setValue(FirstStart, false);
        setValue(FirstStartDate, QDate::currentDate());
    }
    return first;
}

QDate GSettings::firstStartDate() const
{
    return value(FirstStartDate).toDate();
}

QDateTime GSettings::crashLoggerLastCheck() const
{
    return value(CrashLoggerLastCheck, QDateTime::currentDateTime()).toDateTime();
}

void GSettings::setCrashLoggerLastCheck(const QDateTime &time)
{
    setValue(CrashLoggerLastCheck, time);
}

QStringList GSettings::recentFiles() const
{
    return value(RecentFileList).toStringList();
}

void GSettings::addRecentFile(const QString &name)
{
    QStringList names = recentFiles();
    names.removeAll(name);
    names.prepend(name);
    while (names.size() > MaxRecentFiles)
        names.removeLast();
    setValue(RecentFileList, names);
}

QString GSettings::lastFileName()
{
    return recentFiles().value(0);
}

bool GSettings::betaUpdatesEnabled() const
{
    return value(EnableBetaUpdates, false).toBool();
}

void GSettings::setBetaUpdatesEnabled(bool enabled)
{
    setValue(EnableBetaUpdates, enabled);
}

bool GSettings::autoUpdatesEnabled() const
{
    return value(AutoUpdatesEnabled, true).toBool();
}

void GSettings::setAutoUpdatesEnabled(bool enabled)
{
    setValue(AutoUpdatesEnabled, enabled);
}

QStringList GSettings::updaterSkippedVersions() const
{
    return value(SkippedVersions).toStringList();
}

void GSettings::addSkippedVersion(const QString &version)
{
    QStringList versions = updaterSkippedVersions();
    if (versions.contains(version))
        return;
    versions.append(version);
    setValue(SkippedVersions, versions);
}

bool GSettings::sendStatisticsEnabled() const
{
    return value(SendStatisticsEnabled, false).toBool();
}

void GSettings::setSendStatisticsEnabled(bool enabled)
{
    setValue(SendStatisticsEnabled, enabled);
}

QString GSettings::statisticsUUID() const
{
    return value(StatisticsUuid).toString();
}

void GSettings::setStatisticsUUID(const QString &uuid)
{
    setValue(StatisticsUuid, uuid);
}

bool GSettings::trackingAgreementPresented(const QString &text) const
{
    return value(AgreementPresented).toStringList().contains(digest(text));
}

void GSettings::setTrackingAgreementPresented(const QString &text)
{
    QStringList digests = value(AgreementPresented).toStringList();
    if (digests.contains(digest(text)))
        return;
    digests.append(digest(text));
    setValue(AgreementPresented, digests);
}

bool GSettings::useStagingServer() const
{
    return value(UseStagingServer, false).toBool();
}

void GSettings::setUseStagingServer(bool use)
{
    setValue(UseStagingServer, use);
}

QString GSettings::stagingUser() const
{
    return value(StagingUser).toString();
}

void GSettings::setStagingUser(const QString &user)
{
    setValue(StagingUser, user);
}

QString GSettings::stagingPassword() const
{
    return value(StagingPassword).toString();
}

void GSettings::setStagingPassword(const QString &password)
{
    setValue(StagingPassword, password);
}

QString GSettings::feedbackMailAddress() const
{
    return value(FeedbackMail).toString();
}

void GSettings::setFeedbackMailAddress(const QString &address)
{
    setValue(FeedbackMail, address);
}

QDateTime GSettings::askForSharing() const
{
    return value(AskForSharing).toDateTime();
}

void GSettings::setAskForSharing(const QDateTime &time)
{
    setValue(AskForSharing, time);
}

QString GSettings::uiLanguage() const
{
    return value(UiLanguage).toString();
}

void GSettings::setUiLanguage(const QString &language)
{
    setValue(UiLanguage, language);
}

bool GSettings::hasTreatmentForTest(const QString &name)
{
    return contains(TestGroup + name);
}

int GSettings::treatmentForTest(const QString &name)
{
    return value(TestGroup + name, 0).toInt();
}

void GSettings::setTreatmentForTest(const QString &name, int value)
{
    setValue(TestGroup + name, value);
}
