#include "base/GGlobalIgnoreList.h"
#include "base/GlobalSettings.h"
#include "base/SettingsFormat.h"
#include "support/CatalogueFolder.h"
#include "support/FullDisk.h"
#include "support/Rows.h"

#include <QtTest>

/** The settings store, on a file of its own. */
class tst_Settings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        GSettings::setIniFile(m_dir.filePath("settings.ini"));
        GSettings().flushSettings({});
    }

    void firstStart()
    {
        QVERIFY(!GSettings().firstStartDate().isValid());
        QVERIFY(GSettings().getAndSetFirstStart());
        QVERIFY(!GSettings().getAndSetFirstStart());
        QCOMPARE(GSettings().firstStartDate(), QDate::currentDate());
        GSettings().flushSettings({"firstStartDate"});
        QVERIFY(GSettings().firstStartDate().isValid());
        QVERIFY(GSettings().getAndSetFirstStart());
    }

    void recentFiles()
    {
        QVERIFY(GSettings().lastFileName().isEmpty());
        const QStringList names{"a", "b", "c", "d", "e", "b"};
        for (const QString &name : names)
            GSettings().addRecentFile(name);
        QCOMPARE(GSettings().recentFiles().join(QString()), "bedca");
        GSettings().addRecentFile("f");
        QCOMPARE(GSettings().recentFiles().join(QString()), "fbedc");
        QCOMPARE(GSettings().lastFileName(), "f");
    }

    // The store outlives versions of the program, so the names of the keys are fixed.
    void storedUnderTheirKeys()
    {
        GlobalSettings settings;
        const QDateTime time(QDate(2020, 1, 2), QTime(3, 4, 5));
        settings.setCrashLoggerLastCheck(time);
        settings.setBetaUpdatesEnabled(true);
        settings.setAutoUpdatesEnabled(false);
        settings.setSendStatisticsEnabled(true);
        settings.setStatisticsUUID("u");
        settings.setUseStagingServer(true);
        settings.setStagingUser("s");
        settings.setStagingPassword("p");
        settings.setFeedbackMailAddress("m");
        settings.setAskForSharing(time);
        settings.setUiLanguage("de");
        settings.setLastImportPath("/i");
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

    void dataPathIsDecidedOnce()
    {
        QCoreApplication::setApplicationName("one");
        const QString path = GlobalSettings().applicationDataPath();
        QVERIFY(path.endsWith("one"));
        QCoreApplication::setApplicationName("two");
        QCOMPARE(GlobalSettings().applicationDataPath(), path);
        GSettings().flushSettings({});
        QVERIFY(GlobalSettings().applicationDataPath().endsWith("two"));
    }

    void previewPaths()
    {
        GlobalSettings settings;
        settings.setApplicationDataPath("/data");
        QCOMPARE(settings.previewImagePath(QByteArray()), "/data/previews/");
        QCOMPARE(settings.previewImagePath(QByteArray("\xAB\x01", 2)), "/data/previews/ab01.png");
    }

    void agreementIsRememberedByWording()
    {
        const QString text = "wörding";
        QVERIFY(!GSettings().trackingAgreementPresented(text));
        GSettings().setTrackingAgreementPresented(text);
        GSettings().setTrackingAgreementPresented(text);
        QVERIFY(GSettings().trackingAgreementPresented(text));
        QVERIFY(!GSettings().trackingAgreementPresented(text + QLatin1Char('.')));
        const QByteArray digest =
            QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex();
        QCOMPARE(GSettings().value("trackingAgreementPresented").toStringList(),
                 QStringList(QString::fromLatin1(digest)));
    }

    void skippedVersions()
    {
        GSettings().addSkippedVersion("1.2b");
        GSettings().addSkippedVersion("1.2B");
        GSettings().addSkippedVersion("1.2b");
        QCOMPARE(GSettings().value("updater/skippedversions").toStringList(),
                 (QStringList{"1.2b", "1.2B"}));
    }

    void ignoredWarnings()
    {
        QVERIFY(GGlobalIgnoreList::ignoredWarnings().isEmpty());
        GGlobalIgnoreList::ignoreWarning("w");
        GGlobalIgnoreList::ignoreWarning("w");
        QCOMPARE(GGlobalIgnoreList::ignoredWarnings(), QStringList("w"));
        GGlobalIgnoreList::resetIgnoredWarnings();
        QVERIFY(!GSettings().contains("ignoredWarnings"));
    }

    void isTheFormOfOtherVersions_data()
    {
        const Rows<QString, QVariant> row("key", "value");
        const auto value = [&row](const char *name, const QVariant &variant) {
            row(name, "value", variant);
        };
        const auto key = [&row](const char *name, const QString &text) { row(name, text, "x"); };
        value("bool", true);
        value("number", -42);
        value("fraction", 0.1);
        value("time", QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5), Qt::UTC));
        value("date", QDate(2020, 1, 2));
        value("size", QSize(3, -4));
        value("rectangle", QRect(1, 2, 3, 4));
        value("point", QPoint(-1, 2));
        value("map", QVariantMap{{"a", 1}});
        value("no value", QVariant());
        QByteArray bytes;
        for (int i = 0; i < 512; ++i)
            bytes += char(i);
        value("bytes", bytes);
        value("no bytes", QByteArray(""));
        const auto texts = [&](const char *name, const QString &text) {
            value(name, text);
            value(qPrintable(QStringLiteral("list of %1").arg(QLatin1String(name))),
                  QStringList({text, "b", text}));
        };
        texts("empty", QLatin1String(""));
        texts("blanks", "  a  b\t");
        texts("separators", "a;b,c=d");
        texts("quotes", "\"a\\\" 'b'");
        texts("lines", "a\nb\r\nc");
        texts("control characters", "\u0001a\u0002g\u001fx\u007f0");
        texts("zero", QStringLiteral("a") + QChar(0) + "7");
        texts("scripts", "\u00e41\u4e2d\u6587g\U0001F9F5f");
        texts("at", "@Invalid()");
        texts("two at", "@@x");
        texts("percent", "100%1 %2");
        value("empty list", QStringList());
        value("list of one", QStringList("a, b"));
        value("mixed list", QVariantList({1, QSize(1, 2), "@a", QByteArray("b")}));
        key("group", "windowSettings/geometry");
        key("groups", "a/b/c/d");
        key("named as the first", "General/a");
        key("characters", "a b=c%d[e]\\\"#;/\u00e4/\u4e2d");
        key("number sign", "#a");
    }

    // Both ways between this program and those that leave the file to QSettings alone.
    void isTheFormOfOtherVersions()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        const QString path = m_dir.filePath("form.ini");
        const QString other = "beside/it";
        const auto write = [&](QSettings::Format format) {
            QFile::remove(path);
            QSettings settings(path, format);
            settings.setValue(other, "a");
            settings.setValue(key, value);
        };
        const auto read = [&](QSettings::Format format) {
            // Under a name that is new to QSettings, which keeps the values of the others.
            static int count = 0;
            const QString copy = path + QString::number(++count);
            QFile::copy(path, copy);
            const QSettings settings(copy, format);
            const QStringList keys = settings.allKeys();
            return keys.size() == 2 && keys.contains(key) ? settings.value(key)
                                                          : QVariant("missing");
        };
        write(QSettings::IniFormat);
        const QVariant before = read(QSettings::IniFormat);
        // Qt 6 writes UTF-8, for which this form has no place; it reads what this one says.
        if (QT_VERSION_MAJOR == 5)
            QCOMPARE(read(SettingsFormat::format()), before);
        write(SettingsFormat::format());
        QCOMPARE(read(QSettings::IniFormat), before);
    }

    void readsWhatPeopleWrite()
    {
        const QByteArray file = "; a \"comment\n # another=1\n[ General ]\r\n\r\n a = \" x \"  \n"
                                "b=one, \"two, three\" ,four ; not five\nc=\\x41\\\n\\102\n"
                                "no value\n=no key\n[group\nd=e\n[%GENERAL]\nf=%";
        const auto settings = SettingsFormat::parse(file);
        QCOMPARE(settings.value("a").toString(), " x ");
        QCOMPARE(settings.value("b").toStringList(), QStringList({"one", "two, three", "four"}));
        QCOMPARE(settings.value("c").toString(), "AB");
        QCOMPARE(settings.value("group/d").toString(), "e");
        QCOMPARE(settings.value("GENERAL/f").toString(), "%");
        QVERIFY(SettingsFormat::parse("\\").isEmpty());
        QVERIFY(SettingsFormat::parse("a=\"\\").contains("a"));
    }

    void keepsTheOldFileOnAFullDisk_data()
    {
        const Rows<int> row("size");
        // The lock of the file finds room; what fits into a buffer fails when that is emptied.
        row("less than a buffer", 9000);
        row("a buffer and more", 40000);
    }

    void keepsTheOldFileOnAFullDisk()
    {
        QFETCH(int, size);
        const QString key = "key";
        GSettings().setValue(key, QString(size, 'x'));
        GSettings().sync();
        const QString file = m_dir.filePath("settings.ini");
        const QByteArray before = CatalogueFolder::read(file);
        QVERIFY(before.size() > size);
        {
            const FullDisk disk(4096);
            GSettings().setValue(key, QString(size, 'y'));
            GSettings().sync();
        }
        QCOMPARE(CatalogueFolder::read(file), before);
        // What could not be written is not forgotten.
        GSettings().sync();
        QVERIFY(CatalogueFolder::read(file).contains("yyy"));
    }

    void removesWhatAKilledProcessLeft_data()
    {
        const Rows<QByteArray, bool, bool> row("lock", "isRunning", "isRemoved");
        const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
        row("killed in the middle of it", QByteArray("999999999\norganizer\n" + host + '\n'), false,
            true);
        row("killed while it signed", "1\norganizer\nelsew", false, true);
        row("killed before that", "", false, true);
        row("could not let go of it",
            QByteArray::number(QCoreApplication::applicationPid()) + "\ntst_settings\n" + host +
                '\n',
            false, true);
        row("still at it", {}, true, false);
        row("a copy of one's own", {}, false, false);
    }

    void removesWhatAKilledProcessLeft()
    {
        QFETCH(QByteArray, lock);
        QFETCH(bool, isRunning);
        const QString settings = m_dir.filePath("left.conf");
        const auto write = [](const QString &path, const QByteArray &bytes) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        };
        GSettings::setIniFile(settings);
        // What is left behind later matters as well.
        GSettings().sync();
        QLockFile held(settings + ".lock");
        if (isRunning)
            QVERIFY(held.lock());
        else if (!lock.isNull())
            QVERIFY(write(settings + ".lock", lock));
        QVERIFY(write(settings + ".backup", "[General]\n"));

        GSettings().sync();
        QFETCH(bool, isRemoved);
        QCOMPARE(QFile::exists(settings + ".backup"), !isRemoved);
        QCOMPARE(QFile::exists(settings + ".lock"), isRunning);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
