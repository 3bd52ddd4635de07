#include "base/BuildConfig.h"
#include "base/GSettings.h"
#include "base/GTranslationLoader.h"
#include "online/services/GUrlProvider.h"
#include "online/services/SystemInquiry.h"
#include "online/services/VersionCompare.h"

#include <QtTest>

static QString shell(const QString &command)
{
    QProcess process;
    process.start("sh", {"-c", command});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/** Facts about the system, web addresses, versions. */
class tst_Services : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        GSettings::setIniFile(m_dir.filePath("s.ini"));
        QCoreApplication::setApplicationVersion("1.1.4");
        GTranslationLoader::instance()->setTranslations(QCoreApplication::instance());
    }

    void versions()
    {
        const auto order = [](const char *a, const char *b) {
            return VersionCompare::compare(QString::fromLatin1(a), QString::fromLatin1(b));
        };
        QCOMPARE(order("1.1.4", "1.1.5"), -1);
        QCOMPARE(order("2.0.0", "1.9.9"), 1);
        QCOMPARE(order("1.10", "1.9"), 1);
        QCOMPARE(order("1.1", "1.1"), 0);
        QCOMPARE(order("1.2b3", "1.2.3"), 0);
        QCOMPARE(order("", "x"), 0);
        QCOMPARE(order("99999999999", "1"), -1);
        // With a common beginning the shorter is the greater.
        QCOMPARE(order("1.2", "1.2.1"), 1);
        QCOMPARE(order("1.2.1", "1.2"), -1);
    }

    void realFactsOfThisSystem()
    {
        const SystemInquiry *system = theSystemInquiry();
        QCOMPARE(system->osName(), shell("uname -s"));
        const QString distribution = shell(". /etc/os-release && echo \"$ID $VERSION_ID\"");
        if (!distribution.isEmpty())
            QCOMPARE(system->osVersion(), distribution);
        QVERIFY(QRegularExpression("^\\d+\\.\\d+$").match(system->osMainVersion()).hasMatch());
        const int megabytes = shell("awk '/^MemTotal/{print int($2/1024)}' /proc/meminfo").toInt();
        QVERIFY(qAbs(system->systemMemoryMB() - megabytes) <= megabytes / 10);
        QCOMPARE(system->osString(), system->osName() + QLatin1Char(' ') + system->osVersion());
        QVERIFY(m_urls.updateCheckUrl(false).query().contains("&o=linux&"));
    }

    void addresses()
    {
        const QString base = QString::fromLatin1(BuildConfig::BaseUrl);
        const QString name = "p=HooplineOrganizer&utm_source=HooplineOrganizer&lang=en";
        const auto redirect = [base, name](const QString &section, const QString &rest = {}) {
            return QUrl(base + "/redirect?s=" + section + '&' + name + rest);
        };
        QCOMPARE(m_urls.supportUrl(), redirect("support"));
        QCOMPARE(m_urls.documentationUrl(), redirect("documentation"));
        QCOMPARE(m_urls.tutorialsUrl(false, QString()), redirect("tutorials"));
        QCOMPARE(m_urls.tutorialsUrl(true, "dst"), redirect("getting-started", "&exporter=dst"));
        QCOMPARE(m_urls.shareUrl("mail"), redirect("share", "&service=mail"));
        QCOMPARE(m_urls.downloadUrl(false), redirect("download"));
        QCOMPARE(m_urls.downloadUrl(true), QUrl(base + "/hooplineorganizer/download"));
        QCOMPARE(m_urls.feedBackUrl(), QUrl(base + "/php/feedback.php?" + name));

        const QString version = QUrl::toPercentEncoding(theSystemInquiry()->osVersion());
        QVERIFY(QRegularExpression(
                    QStringLiteral("^%1/releases/hooplineorganizer/updatecheck\\.php"
                                   "\\?v=1\\.1\\.4&b=yes&o=[a-z]+&ov=%2&bit=64&lang=en$")
                        .arg(QRegularExpression::escape(base), QRegularExpression::escape(version)))
                    .match(m_urls.updateCheckUrl(true).toEncoded())
                    .hasMatch());

        GSettings().setUseStagingServer(true);
        QVERIFY(m_urls.feedBackUrl().toString().startsWith(BuildConfig::StagingUrl));
        GSettings().setUseStagingServer(false);
    }

    void exporterOfTheCurrentWindow()
    {
        const QString format = "exp+ &=#ä";
        GUrlProvider::setDataFormatSource([format] { return format; });
        const QUrl url = m_urls.documentationUrl();
        QVERIFY(!url.toEncoded().contains('+'));
        QCOMPARE(QUrlQuery(url).queryItemValue("exporter", QUrl::FullyDecoded), format);
        QVERIFY(m_urls.tutorialsUrl(false, "dst").query().endsWith("&exporter=dst"));
        GUrlProvider::setDataFormatSource({});
    }

private:
    QTemporaryDir m_dir;
    GUrlProvider m_urls{"Hoopline Organizer"};
};

QTEST_GUILESS_MAIN(tst_Services)
#include "tst_services.moc"
