#include "base/GGlobalIgnoreList.h"
#include "base/GlobalSettings.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

/** The settings store, on a file of its own. */
class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstStart();
    void recentFiles();
    void defaults();
    void storedUnderTheirKeys();
    void dataPathIsDecidedOnce();
    void previewPaths();
    void agreementIsRememberedByWording();
    void skippedVersions();
    void ignoredWarnings();

private:
    QTemporaryDir m_dir;
};

void tst_Settings::init()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("settings.ini")));
    GSettings().flushSettings({});
}

void tst_Settings::firstStart()
{
    QVERIFY(!GSettings().firstStartDate().isValid());
    QVERIFY(GSettings().getAndSetFirstStart());
    QVERIFY(!GSettings().getAndSetFirstStart());
    QCOMPARE(GSettings().firstStartDate(), QDate::currentDate());
    GSettings().flushSettings({QStringLiteral("firstStartDate")});
    QVERIFY(GSettings().firstStartDate().isValid());
    QVERIFY(GSettings().getAndSetFirstStart());
}

void tst_Settings::recentFiles()
{
    QVERIFY(GSettings().lastFileName().isEmpty());
    const QStringList names{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                            QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("b")};
    for (const QString &name : names)
        GSettings().addRecentFile(name);
    QCOMPARE(GSettings().recentFiles().join(QString()), QStringLiteral("bedca"));
    GSettings().addRecentFile(QStringLiteral("f"));
    QCOMPARE(GSettings().recentFiles().join(QString()), QStringLiteral("fbedc"));
    QCOMPARE(GSettings().lastFileName(), QStringLiteral("f"));
}

void tst_Settings::defaults()
{
    GlobalSettings settings;
    QVERIFY(settings.autoUpdatesEnabled());
    QVERIFY(!settings.sendStatisticsEnabled());
    QVERIFY(qAbs(settings.crashLoggerLastCheck().secsTo(QDateTime::currentDateTime())) <= 1);
    QCOMPARE(settings.imperialUnits(),
             QLocale::system().measurementSystem() != QLocale::MetricSystem);
    QVERIFY(settings.contains(QStringLiteral("imperialUnits")));
}

// The store outlives versions of the program, so the names of the keys are fixed.
void tst_Settings::storedUnderTheirKeys()
{
    GlobalSettings settings;
    const QDateTime time(QDate(2020, 1, 2), QTime(3, 4, 5));
    settings.setCrashLoggerLastCheck(time);
    settings.setBetaUpdatesEnabled(true);
    settings.setAutoUpdatesEnabled(false);
    settings.setSendStatisticsEnabled(true);
    settings.setStatisticsUUID(QStringLiteral("u"));
    settings.setUseStagingServer(true);
    settings.setStagingUser(QStringLiteral("s"));
    settings.setStagingPassword(QStringLiteral("p"));
    settings.setFeedbackMailAddress(QStringLiteral("m"));
    settings.setAskForSharing(time);
    settings.setUiLanguage(QStringLiteral("de"));
    settings.setLastImportPath(QStringLiteral("/i"));
    settings.setGridScaleFactor(150);
    settings.setImperialUnits(true);
    const QVariantMap expected{{"crashlogger-last-check", time},
                               {"enableBetaUpdates", true},
                               {"autoUpdatesEnabled", false},
                               {"sendStatisticsEnabled", true},
                               {"statisticsUUID", "u"},
                               {"useStagingServer", true},
                               {"stagingUser", "s"},
                               {"stagingPassword", "p"},
                               {"feedBack.mail", "m"},
                               {"askForSharing", time},
                               {"uiLanguage", "de"},
                               {"lastImportPath", "/i"},
                               {"gridScaleFactor", 150},
                               {"imperialUnits", true}};
    for (auto key = expected.begin(); key != expected.end(); ++key)
        QCOMPARE(settings.value(key.key()), key.value());
}

void tst_Settings::dataPathIsDecidedOnce()
{
    QCoreApplication::setApplicationName(QStringLiteral("one"));
    const QString path = GlobalSettings().applicationDataPath();
    QVERIFY(path.endsWith(QStringLiteral("one")));
    QCoreApplication::setApplicationName(QStringLiteral("two"));
    QCOMPARE(GlobalSettings().applicationDataPath(), path);
    GSettings().flushSettings({});
    QVERIFY(GlobalSettings().applicationDataPath().endsWith(QStringLiteral("two")));
}

void tst_Settings::previewPaths()
{
    GlobalSettings settings;
    settings.setApplicationDataPath(QStringLiteral("/data"));
    QCOMPARE(settings.previewImagePath(QByteArray()), QStringLiteral("/data/previews/"));
    QCOMPARE(settings.previewImagePath(QByteArray("\xAB\x01", 2)),
             QStringLiteral("/data/previews/ab01.png"));
}

void tst_Settings::agreementIsRememberedByWording()
{
    const QString text = QStringLiteral("wörding");
    QVERIFY(!GSettings().trackingAgreementPresented(text));
    GSettings().setTrackingAgreementPresented(text);
    GSettings().setTrackingAgreementPresented(text);
    QVERIFY(GSettings().trackingAgreementPresented(text));
    QVERIFY(!GSettings().trackingAgreementPresented(text + QLatin1Char('.')));
    const QByteArray digest =
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex();
    QCOMPARE(GSettings().value(QStringLiteral("trackingAgreementPresented")).toStringList(),
             QStringList(QString::fromLatin1(digest)));
}

void tst_Settings::skippedVersions()
{
    GSettings().addSkippedVersion(QStringLiteral("1.2b"));
    GSettings().addSkippedVersion(QStringLiteral("1.2B"));
    GSettings().addSkippedVersion(QStringLiteral("1.2b"));
    QCOMPARE(GSettings().value(QStringLiteral("updater/skippedversions")).toStringList(),
             (QStringList{QStringLiteral("1.2b"), QStringLiteral("1.2B")}));
}

void tst_Settings::ignoredWarnings()
{
    QVERIFY(GGlobalIgnoreList::ignoredWarnings().isEmpty());
    GGlobalIgnoreList::ignoreWarning(QStringLiteral("w"));
    GGlobalIgnoreList::ignoreWarning(QStringLiteral("w"));
    QCOMPARE(GGlobalIgnoreList::ignoredWarnings(), QStringList(QStringLiteral("w")));
    GGlobalIgnoreList::resetIgnoredWarnings();
    QVERIFY(!GSettings().contains(QStringLiteral("ignoredWarnings")));
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
