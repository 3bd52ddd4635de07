#include "base/GGlobalIgnoreList.h"
#include "base/GlobalSettings.h"
#include "base/SettingsFormat.h"
#include "base/SettingsLeftovers.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QLocale>
#include <QLockFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

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
    void isTheFormOfOtherVersions_data();
    void isTheFormOfOtherVersions();
    void readsWhatPeopleWrite();
    void keepsTheOldFileOnAFullDisk_data();
    void keepsTheOldFileOnAFullDisk();
    void removesWhatAKilledProcessLeft_data();
    void removesWhatAKilledProcessLeft();

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

void tst_Settings::isTheFormOfOtherVersions_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    const auto value = [](const char *name, const QVariant &variant) {
        QTest::newRow(name) << QStringLiteral("value") << variant;
    };
    const auto key = [](const char *name, const QString &text) {
        QTest::newRow(name) << text << QVariant(QStringLiteral("x"));
    };
    value("bool", true);
    value("number", -42);
    value("fraction", 0.1);
    value("time", QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5), Qt::UTC));
    value("date", QDate(2020, 1, 2));
    value("size", QSize(3, -4));
    value("rectangle", QRect(1, 2, 3, 4));
    value("point", QPoint(-1, 2));
    value("map", QVariantMap{{QStringLiteral("a"), 1}});
    value("no value", QVariant());
    QByteArray bytes;
    for (int i = 0; i < 512; ++i)
        bytes += char(i);
    value("bytes", bytes);
    value("no bytes", QByteArray(""));
    const auto texts = [&](const char *name, const QString &text) {
        value(name, text);
        value(qPrintable(QStringLiteral("list of %1").arg(QLatin1String(name))),
              QStringList({text, QStringLiteral("b"), text}));
    };
    texts("empty", QLatin1String(""));
    texts("blanks", QStringLiteral("  a  b\t"));
    texts("separators", QStringLiteral("a;b,c=d"));
    texts("quotes", QStringLiteral("\"a\\\" 'b'"));
    texts("lines", QStringLiteral("a\nb\r\nc"));
    texts("control characters", QStringLiteral("\u0001a\u0002g\u001fx\u007f0"));
    texts("zero", QStringLiteral("a") + QChar(0) + QStringLiteral("7"));
    texts("scripts", QStringLiteral("\u00e41\u4e2d\u6587g\U0001F9F5f"));
    texts("at", QStringLiteral("@Invalid()"));
    texts("two at", QStringLiteral("@@x"));
    texts("percent", QStringLiteral("100%1 %2"));
    value("empty list", QStringList());
    value("list of one", QStringList(QStringLiteral("a, b")));
    value("mixed list", QVariantList({1, QSize(1, 2), QStringLiteral("@a"), QByteArray("b")}));
    key("group", QStringLiteral("windowSettings/geometry"));
    key("groups", QStringLiteral("a/b/c/d"));
    key("named as the first", QStringLiteral("General/a"));
    key("characters", QStringLiteral("a b=c%d[e]\\\"#;/\u00e4/\u4e2d"));
    key("number sign", QStringLiteral("#a"));
}

// Both ways between this program and those that leave the file to QSettings alone.
void tst_Settings::isTheFormOfOtherVersions()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const QString path = m_dir.filePath(QStringLiteral("form.ini"));
    const QString other = QStringLiteral("beside/it");
    const auto write = [&](QSettings::Format format) {
        QFile::remove(path);
        QSettings settings(path, format);
        settings.setValue(other, QStringLiteral("a"));
        settings.setValue(key, value);
    };
    const auto read = [&](QSettings::Format format) {
        // Under a name that is new to QSettings, which keeps the values of the others.
        static int count = 0;
        const QString copy = path + QString::number(++count);
        QFile::copy(path, copy);
        const QSettings settings(copy, format);
        const QStringList keys = settings.allKeys();
        return keys.size() == 2 && keys.contains(key) ? settings.value(key) : QVariant("missing");
    };
    write(QSettings::IniFormat);
    const QVariant before = read(QSettings::IniFormat);
    QCOMPARE(read(SettingsFormat::format()), before);
    write(SettingsFormat::format());
    QCOMPARE(read(QSettings::IniFormat), before);
}

void tst_Settings::readsWhatPeopleWrite()
{
    const QByteArray file = "; a \"comment\n # another=1\n[ General ]\r\n\r\n a = \" x \"  \n"
                            "b=one, \"two, three\" ,four ; not five\nc=\\x41\\\n\\102\n"
                            "no value\n=no key\n[group\nd=e\n[%GENERAL]\nf=%";
    const auto settings = SettingsFormat::parse(file);
    QCOMPARE(settings.value("a").toString(), QStringLiteral(" x "));
    QCOMPARE(settings.value("b").toStringList(), QStringList({"one", "two, three", "four"}));
    QCOMPARE(settings.value("c").toString(), QStringLiteral("AB"));
    QCOMPARE(settings.value("group/d").toString(), QStringLiteral("e"));
    QCOMPARE(settings.value("GENERAL/f").toString(), QStringLiteral("%"));
    QVERIFY(SettingsFormat::parse("\\").isEmpty());
    QVERIFY(SettingsFormat::parse("a=\"\\").contains("a"));
}

void tst_Settings::keepsTheOldFileOnAFullDisk_data()
{
    QTest::addColumn<int>("size");
    // The lock of the file finds room; what fits into a buffer fails when that is emptied.
    QTest::newRow("less than a buffer") << 9000;
    QTest::newRow("a buffer and more") << 40000;
}

void tst_Settings::keepsTheOldFileOnAFullDisk()
{
#ifdef Q_OS_UNIX
    QFETCH(int, size);
    const QString key = QStringLiteral("key");
    GSettings().setValue(key, QString(size, QLatin1Char('x')));
    GSettings().sync();
    QFile file(m_dir.filePath(QStringLiteral("settings.ini")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QVERIFY(before.size() > size);

    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{4096, limit.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    GSettings().setValue(key, QString(size, QLatin1Char('y')));
    GSettings().sync();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    QFile after(file.fileName());
    QVERIFY(after.open(QIODevice::ReadOnly));
    QCOMPARE(after.readAll(), before);
    // What could not be written is not forgotten.
    GSettings().sync();
    QFile again(file.fileName());
    QVERIFY(again.open(QIODevice::ReadOnly));
    QVERIFY(again.readAll().contains("yyy"));
#endif
}

void tst_Settings::removesWhatAKilledProcessLeft_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::addColumn<bool>("isRunning");
    QTest::addColumn<bool>("isRemoved");
    const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
    QTest::newRow("killed in the middle of it")
        << QByteArray("999999999\norganizer\n" + host + '\n') << false << true;
    QTest::newRow("killed while it signed") << QByteArray("1\norganizer\nelsew") << false << true;
    QTest::newRow("killed before that") << QByteArray("") << false << true;
    QTest::newRow("still at it") << QByteArray() << true << false;
    QTest::newRow("a copy of one's own") << QByteArray() << false << false;
}

void tst_Settings::removesWhatAKilledProcessLeft()
{
    QFETCH(QByteArray, lock);
    QFETCH(bool, isRunning);
    const QString settings = m_dir.filePath(QStringLiteral("left.conf"));
    const auto write = [](const QString &path, const QByteArray &bytes) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QLockFile held(settings + ".lock");
    if (isRunning)
        QVERIFY(held.lock());
    else if (!lock.isNull())
        QVERIFY(write(settings + ".lock", lock));
    QVERIFY(write(settings + ".backup", "[General]\n"));

    SettingsLeftovers::remove(settings);
    QFETCH(bool, isRemoved);
    QCOMPARE(QFile::exists(settings + ".backup"), !isRemoved);
    QCOMPARE(QFile::exists(settings + ".lock"), isRunning);
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
