#include "support/GuardFolder.h"

#include "base/BuildConfig.h"
#include "support/HttpServer.h"
#include "support/Rows.h"

#include <QtTest>

constexpr int Patience = 30000;

/** The program itself, as a process in a profile of its own. */
class tst_program : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_profile = std::make_unique<GuardFolder>();
        QSettings settings(settingsPath(), QSettings::IniFormat);
        settings.setValue("autoUpdatesEnabled", false);
        settings.setValue("applicationDataPath", m_profile->filePath("data"));
        QDir().mkpath(m_profile->filePath("data"));
    }

    void cleanup() { m_profile.reset(); }

    void answersOnTheTerminal_data()
    {
        const Rows<QStringList, int, QByteArray> row("arguments", "status", "answer");
        row("help", {"--help"}, 0, "Usage: hoopline-organizer ");
        row("help, in German", {"--language=de", "-h"}, 0, "Aufruf: hoopline-organizer ");
        row("version", {"-V"}, 0, "hoopline-organizer 1.");
        row("unknown", {"--bogus"}, 2, "'--bogus'");
        row("unknown beside one of Qt", {"-style", "--help", "-x"}, 2, "'-x'");
        row("told only in full", {"--language"}, 2, "'--language'");
    }

    // There is no display, and nothing but the answer.
    void answersOnTheTerminal()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, answer);
        qunsetenv("QT_QPA_PLATFORM");
        QProcess process;
        start(process, arguments);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QVERIFY(process.waitForFinished(Patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
        const QByteArray out = process.readAllStandardOutput();
        const QByteArray error = process.readAllStandardError();
        QVERIFY2((status == 0 ? out : error).contains(answer), out + error);
        QVERIFY2((status == 0 ? error : out).isEmpty(), out + error);
        QVERIFY(!catalogueExists());
    }

    void manualPageTellsAllOptions()
    {
        QProcess process;
        start(process, {"--help"});
        QVERIFY(process.waitForFinished(Patience));
        QFile page(MANUAL_PAGE);
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString manual = QString::fromUtf8(page.readAll()).replace("\\-", "-");
        const auto optionsOf = [](const QString &text) {
            QSet<QString> options;
            auto match = QRegularExpression("--[a-z][a-z-]+").globalMatch(text);
            while (match.hasNext())
                options.insert(match.next().captured());
            return options;
        };
        const QSet<QString> told = optionsOf(QString::fromUtf8(process.readAllStandardOutput()));
        QVERIFY(told.contains("--version"));
        QCOMPARE(optionsOf(manual), told);
    }

    void flushesSettings()
    {
        QProcess process;
        start(process, {"--flushsettings"});
        QVERIFY(process.waitForFinished(Patience));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), "Flushing all settings\n");
        QVERIFY(QSettings(settingsPath(), QSettings::IniFormat).allKeys().isEmpty());
        QVERIFY(!catalogueExists());
    }

    void firstStartMakesACatalogue()
    {
        QProcess process;
        start(process, {"--do-not-track"});
        QTRY_VERIFY_WITH_TIMEOUT(catalogueExists(), Patience);
        process.kill();
        QVERIFY(process.waitForFinished(Patience));
        const QSettings settings(settingsPath(), QSettings::IniFormat);
        QCOMPARE(settings.value("firstStart"), QVariant("false"));
        QCOMPARE(settings.value("statisticsUUID").toString().size(), 32);
        QVERIFY(!settings.value("sendStatisticsEnabled").toBool());
    }

    void freshProfileOnlyAsksForUpdates_data()
    {
        const Rows<QStringList, QStringList> row("arguments", "asked");
        const QString updates = QUrl(QLatin1String(BuildConfig::BaseUrl)).host() + ":443";
        const QString metrics = "t40817263." + QString(BuildConfig::MetricsDomain) + ":443";
        row("fresh", {}, QStringList(updates));
        // Told twice: as a property and as an event.
        row("asked not to track", {"--do-not-track"}, {metrics, metrics, updates});
    }

    // All traffic goes through a proxy that counts, and lets nothing pass.
    void freshProfileOnlyAsksForUpdates()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, asked);
        HttpServer proxy([](const HttpServer::Request &) {
            HttpServer::Response refusal;
            refusal.status = 502;
            return refusal;
        });
        for (const char *variable : {"http_proxy", "https_proxy", "all_proxy"})
            qputenv(variable, proxy.url(QString()).toEncoded());
        QVERIFY(QFile::remove(settingsPath()));
        QProcess process;
        start(process, arguments);
        QTRY_VERIFY_WITH_TIMEOUT(proxy.requests().size() >= asked.size(), Patience);
        QTest::qWait(300);
        process.kill();
        QVERIFY(process.waitForFinished(Patience));
        QStringList targets;
        for (const HttpServer::Request &request : proxy.requests())
            targets.append(QString::fromLatin1(request.target));
        targets.sort();
        QCOMPARE(targets, asked);
        QCOMPARE(proxy.connections(), asked.size());
    }

    void secondStartLeavesSettingsOfARunningProgram()
    {
        QProcess primary;
        start(primary);
        QTRY_VERIFY_WITH_TIMEOUT(catalogueExists(), Patience);
        QProcess second;
        start(second, {"--flushsettings"});
        QVERIFY(second.waitForFinished(Patience));
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(second.readAllStandardOutput().isEmpty());
        QVERIFY(QSettings(settingsPath(), QSettings::IniFormat).contains("autoUpdatesEnabled"));
        primary.kill();
        QVERIFY(primary.waitForFinished(Patience));
    }

    void reportsCrashesOnRequest()
    {
        QProcess process;
        start(process, {"--report-crash"});
        QVERIFY(process.waitForFinished(Patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(!catalogueExists());
    }

private:
    void start(QProcess &process, const QStringList &arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_profile->filePath("config"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(PROGRAM), arguments);
    }

    QString settingsPath() const
    {
        return m_profile->filePath(QStringLiteral("config/%1/Hoopline Organizer.conf")
                                       .arg(QLatin1String(BuildConfig::Organisation)));
    }

    bool catalogueExists() const
    {
        return QFile::exists(m_profile->filePath("data/hoopline-organizer.xml"));
    }

    std::unique_ptr<GuardFolder> m_profile;
};

QTEST_GUILESS_MAIN(tst_program)
#include "tst_program.moc"
