#include "app/base/BuildConfig.h"
#include "app/base/GSettings.h"
#include "app/base/GTranslationLoader.h"
#include "online/services/GUrlProvider.h"
#include "online/services/SystemInquiry.h"
#include "online/services/VersionCompare.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrlQuery>

namespace {

class FixedInquiry : public SystemInquiry
{
public:
    explicit FixedInquiry(const QString &version) : m_version(version) {}
    QStringList userMailAddresses() const override { return {}; }
    QString osName() const override { return QStringLiteral("Name"); }
    QString osType() const override { return QStringLiteral("type"); }
    QString osVersion() const override { return m_version; }
    int systemMemoryMB() const override { return 1; }

private:
    QString m_version;
};

QString shell(const QString &command)
{
    QProcess process;
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

/** Facts about the system, web addresses, versions. */
class tst_Services : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { GSettings().flushSettings({}); }
    void cleanup();
    void versions_data();
    void versions();
    void realFactsOfThisSystem();
    void mainVersion_data();
    void mainVersion();
    void addresses_data();
    void addresses();
    void updateCheckAddress();
    void exporterOfTheCurrentWindow();
    void stagingServer();
    void valuesAreEncoded();

private:
    QTemporaryDir m_dir;
    GUrlProvider m_urls{QStringLiteral("Hoopline Organizer")};
};

void tst_Services::initTestCase()
{
    GSettings::setIniFile(m_dir.filePath(QStringLiteral("s.ini")));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.1.4"));
    GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
}

void tst_Services::cleanup()
{
    SystemInquiry::overrideInstance(nullptr);
    GUrlProvider::setDataFormatSource({});
    GUrlProvider::setResourcesDirectorySource({});
}

void tst_Services::versions_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("less") << "1.1.4"
                          << "1.1.5" << -1;
    QTest::newRow("greater") << "2.0.0"
                             << "1.9.9" << 1;
    QTest::newRow("numbers, not texts") << "1.10"
                                        << "1.9" << 1;
    QTest::newRow("equal") << "1.1"
                           << "1.1" << 0;
    QTest::newRow("the shorter is greater") << "1.2"
                                            << "1.2.1" << 1;
    QTest::newRow("the longer is less") << "1.2.1"
                                        << "1.2" << -1;
    QTest::newRow("letters separate") << "1.2b3"
                                      << "1.2.3" << 0;
    QTest::newRow("both empty") << ""
                                << "x" << 0;
    QTest::newRow("too large for a number") << "99999999999"
                                            << "1" << -1;
}

void tst_Services::versions()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(VersionCompare::compare(a, b), "order");
}

void tst_Services::realFactsOfThisSystem()
{
#ifdef Q_OS_LINUX
    const SystemInquiry *system = theSystemInquiry();
    QCOMPARE(system->osName(), shell(QStringLiteral("uname -s")));
    const QString distribution =
        shell(QStringLiteral(". /etc/os-release && echo \"$ID $VERSION_ID\""));
    if (!distribution.isEmpty())
        QCOMPARE(system->osVersion(), distribution);
    const int megabytes =
        shell(QStringLiteral("awk '/^MemTotal/{print int($2/1024)}' /proc/meminfo")).toInt();
    QVERIFY(qAbs(system->systemMemoryMB() - megabytes) <= megabytes / 10);
    QCOMPARE(system->osString(), system->osName() + QLatin1Char(' ') + system->osVersion());
    qputenv("EMAIL", "jo@mail.example");
    QCOMPARE(system->userMailAddresses(), QStringList(QStringLiteral("jo@mail.example")));
    qunsetenv("EMAIL");
    QVERIFY(system->userMailAddresses().isEmpty());
#else
    QSKIP("Linux only");
#endif
}

void tst_Services::mainVersion_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("mainVersion");
    QTest::newRow("two") << "ubuntu 22.04"
                         << "22.04";
    QTest::newRow("one") << "debian 12"
                         << "12.0";
    QTest::newRow("kernel") << "6.1.0-18-amd64"
                            << "6.1";
    QTest::newRow("none") << "unknown"
                          << "0.0";
}

void tst_Services::mainVersion()
{
    QFETCH(QString, version);
    FixedInquiry inquiry(version);
    SystemInquiry::overrideInstance(&inquiry);
    QTEST(theSystemInquiry()->osMainVersion(), "mainVersion");
}

void tst_Services::addresses_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("query");
    const QString name = QStringLiteral("p=HooplineOrganizer&utm_source=HooplineOrganizer&lang=en");
    QTest::newRow("support") << m_urls.supportUrl() << "/redirect"
                             << "s=support&" + name;
    QTest::newRow("documentation") << m_urls.documentationUrl() << "/redirect"
                                   << "s=documentation&" + name;
    QTest::newRow("tutorials") << m_urls.tutorialsUrl(false, QString()) << "/redirect"
                               << "s=tutorials&" + name;
    QTest::newRow("getting started")
        << m_urls.tutorialsUrl(true, QStringLiteral("dst")) << "/redirect"
        << "s=getting-started&" + name + "&exporter=dst";
    QTest::newRow("share") << m_urls.shareUrl(QStringLiteral("mail")) << "/redirect"
                           << "s=share&" + name + "&service=mail";
    QTest::newRow("download page") << m_urls.downloadUrl(false) << "/redirect"
                                   << "s=download&" + name;
    QTest::newRow("download") << m_urls.downloadUrl(true) << "/hooplineorganizer/download"
                              << "";
    QTest::newRow("feedback") << m_urls.feedBackUrl() << "/php/feedback.php" << name;
}

void tst_Services::addresses()
{
    QFETCH(QUrl, url);
    QFETCH(QString, path);
    QFETCH(QString, query);
    const QString base = QString::fromLatin1(BuildConfig::BaseUrl);
    QCOMPARE(url.toString(),
             base + path + (query.isEmpty() ? QString() : QLatin1Char('?') + query));
}

void tst_Services::updateCheckAddress()
{
    FixedInquiry inquiry(QStringLiteral("12"));
    SystemInquiry::overrideInstance(&inquiry);
#ifdef Q_OS_LINUX
    const QString tag = QStringLiteral("linux");
#else
    const QString tag = QStringLiteral("mac");
#endif
    QCOMPARE(m_urls.updateCheckUrl(false).toString(),
             QString::fromLatin1(BuildConfig::BaseUrl) +
                 QStringLiteral("/releases/hooplineorganizer/updatecheck.php?"
                                "v=1.1.4&b=no&o=%1&ov=12&bit=64&lang=en")
                     .arg(tag));
    QCOMPARE(QUrlQuery(m_urls.updateCheckUrl(true)).queryItemValue(QStringLiteral("b")),
             QStringLiteral("yes"));
}

void tst_Services::exporterOfTheCurrentWindow()
{
    const QString key = QStringLiteral("exporter");
    GUrlProvider::setDataFormatSource([] { return QStringLiteral("pes"); });
    QCOMPARE(QUrlQuery(m_urls.documentationUrl()).queryItemValue(key), QStringLiteral("pes"));
    QCOMPARE(QUrlQuery(m_urls.tutorialsUrl(false, QStringLiteral("dst"))).queryItemValue(key),
             QStringLiteral("dst"));
    GUrlProvider::setDataFormatSource([] { return QString(); });
    QVERIFY(!QUrlQuery(m_urls.documentationUrl()).hasQueryItem(key));
}

void tst_Services::stagingServer()
{
    GSettings().setUseStagingServer(true);
    QCOMPARE(m_urls.baseUrlString(), QString::fromLatin1(BuildConfig::StagingUrl));
    GUrlProvider::setResourcesDirectorySource([] { return QDir(QStringLiteral("/r")); });
    QCOMPARE(m_urls.acknowledgementsUrl(),
             QUrl(QStringLiteral("file:///r/documents/Acknowledgements.html")));
}

void tst_Services::valuesAreEncoded()
{
    const QString value = QStringLiteral("exp+ &=#ä");
    const QUrl url = m_urls.url(QStringLiteral("s"), {{QStringLiteral("exporter"), value}});
    QVERIFY(!url.toEncoded().contains('+'));
    QCOMPARE(QUrlQuery(url).queryItemValue(QStringLiteral("exporter"), QUrl::FullyDecoded), value);
}

QTEST_GUILESS_MAIN(tst_Services)
#include "tst_services.moc"
