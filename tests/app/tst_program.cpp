#include "support/GuardFolder.h"

#include "base/BuildConfig.h"
#include "support/HttpServer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QtTest>

namespace {

constexpr int Patience = 30000;

} // namespace

/** The program itself, as a process in a profile of its own. */
class tst_program : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_profile.reset(); }
    void answersOnTheTerminal_data();
    void answersOnTheTerminal();
    void manualPageTellsAllOptions();
    void flushesSettings();
    void firstStartMakesACatalogue();
    void freshProfileOnlyAsksForUpdates_data();
    void freshProfileOnlyAsksForUpdates();
    void secondStartLeavesSettingsOfARunningProgram();
    void reportsCrashesOnRequest();

private:
    void start(QProcess &process, const QStringList &arguments = {});
    QString settingsPath() const;
    bool catalogueExists() const;

    std::unique_ptr<GuardFolder> m_profile;
};

void tst_program::init()
{
    m_profile = std::make_unique<GuardFolder>();
    QSettings settings(settingsPath(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("autoUpdatesEnabled"), false);
    settings.setValue(QStringLiteral("applicationDataPath"),
                      m_profile->filePath(QStringLiteral("data")));
    QDir().mkpath(m_profile->filePath(QStringLiteral("data")));
}

QString tst_program::settingsPath() const
{
    return m_profile->filePath(QStringLiteral("config/%1/Hoopline Organizer.conf")
                                   .arg(QLatin1String(BuildConfig::Organisation)));
}

void tst_program::start(QProcess &process, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       m_profile->filePath(QStringLiteral("config")));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PROGRAM), arguments);
}

bool tst_program::catalogueExists() const
{
    return QFile::exists(m_profile->filePath(QStringLiteral("data/hoopline-organizer.xml")));
}

void tst_program::answersOnTheTerminal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("help") << QStringList{"--help"} << 0 << QByteArray("Usage: hoopline-organizer ");
    QTest::newRow("help, in German")
        << QStringList{"--language=de", "-h"} << 0 << QByteArray("Aufruf: hoopline-organizer ");
    QTest::newRow("version") << QStringList{"-V"} << 0 << QByteArray("hoopline-organizer 1.");
    QTest::newRow("unknown") << QStringList{"--bogus"} << 2 << QByteArray("'--bogus'");
    QTest::newRow("unknown beside one of Qt")
        << QStringList{"-style", "--help", "-x"} << 2 << QByteArray("'-x'");
    QTest::newRow("told only in full")
        << QStringList{"--language"} << 2 << QByteArray("'--language'");
}

// There is no display, and nothing but the answer.
void tst_program::answersOnTheTerminal()
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

void tst_program::manualPageTellsAllOptions()
{
    QProcess process;
    start(process, {QStringLiteral("--help")});
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

void tst_program::flushesSettings()
{
    QProcess process;
    start(process, {QStringLiteral("--flushsettings")});
    QVERIFY(process.waitForFinished(Patience));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("Flushing all settings\n"));
    QVERIFY(QSettings(settingsPath(), QSettings::IniFormat).allKeys().isEmpty());
    QVERIFY(!catalogueExists());
}

void tst_program::firstStartMakesACatalogue()
{
    QProcess process;
    start(process, {QStringLiteral("--do-not-track")});
    QTRY_VERIFY_WITH_TIMEOUT(catalogueExists(), Patience);
    process.kill();
    QVERIFY(process.waitForFinished(Patience));
    const QSettings settings(settingsPath(), QSettings::IniFormat);
    QCOMPARE(settings.value(QStringLiteral("firstStart")), QVariant(QStringLiteral("false")));
    QCOMPARE(settings.value(QStringLiteral("statisticsUUID")).toString().size(), 32);
    QVERIFY(!settings.value(QStringLiteral("sendStatisticsEnabled")).toBool());
}

void tst_program::freshProfileOnlyAsksForUpdates_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("asked");
    const QString updates = QUrl(QLatin1String(BuildConfig::BaseUrl)).host() + ":443";
    const QString metrics = "t40817263." + QString(BuildConfig::MetricsDomain) + ":443";
    QTest::newRow("fresh") << QStringList() << QStringList(updates);
    // Told twice: as a property and as an event.
    QTest::newRow("asked not to track")
        << QStringList("--do-not-track") << QStringList{metrics, metrics, updates};
}

// All traffic goes through a proxy that counts, and lets nothing pass.
void tst_program::freshProfileOnlyAsksForUpdates()
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

void tst_program::secondStartLeavesSettingsOfARunningProgram()
{
    QProcess primary;
    start(primary);
    QTRY_VERIFY_WITH_TIMEOUT(catalogueExists(), Patience);
    QProcess second;
    start(second, {QStringLiteral("--flushsettings")});
    QVERIFY(second.waitForFinished(Patience));
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(second.readAllStandardOutput().isEmpty());
    QVERIFY(QSettings(settingsPath(), QSettings::IniFormat)
                .contains(QStringLiteral("autoUpdatesEnabled")));
    primary.kill();
    QVERIFY(primary.waitForFinished(Patience));
}

void tst_program::reportsCrashesOnRequest()
{
    QProcess process;
    start(process, {QStringLiteral("--report-crash")});
    QVERIFY(process.waitForFinished(Patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(!catalogueExists());
}

QTEST_GUILESS_MAIN(tst_program)
#include "tst_program.moc"
