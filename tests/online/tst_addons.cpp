#include "app/addons/GApplicationAddons.h"
#include "app/addons/GFileAssociationHandler.h"
#include "app/base/BuildConfig.h"
#include "app/base/DI.h"
#include "app/base/GDebug.h"
#include "online/services/GUrlProvider.h"

#include <QCoreApplication>
#include <QtTest>

namespace {

class OtherProvider : public GUrlProvider
{
public:
    using GUrlProvider::GUrlProvider;
    QString baseUrlString() const override { return QStringLiteral("https://other.example"); }
};

} // namespace

/** The application's services, without an application. */
class tst_Addons : public QObject
{
    Q_OBJECT

private slots:
    void initialState();
    void productReplacesTheProvider();
    void resourcesDirectory();
    void buildDate();
    void processIsPrepared();
};

void tst_Addons::initialState()
{
    QVERIFY(!GApplicationAddons::addons());
    {
        GApplicationAddons addons(true, QStringLiteral("Hoopline Organizer"), QStringLiteral("hl"));
        QCOMPARE(GApplicationAddons::addons(), &addons);
        QVERIFY(addons.hasTrackingAgreement());
        QVERIFY(!addons.crashDetected());
        QCOMPARE(addons.shortName(), QStringLiteral("hl"));
        QVERIFY(addons.updaterPixmap().isNull());
        QVERIFY(!addons.fileAssociationHandler()->nativeEventFilter("e", nullptr, nullptr));
        QVERIFY(addons.urlProvider()->feedBackUrl().toString().contains(
            QStringLiteral("p=HooplineOrganizer&")));
    }
    QVERIFY(!GApplicationAddons::addons());
}

void tst_Addons::productReplacesTheProvider()
{
    theDependencyRegistry()
        ->setConstructorWith1ParameterForRole<GUrlProvider, OtherProvider, QString>(
            GApplicationAddons::di_UrlProvider);
    const GApplicationAddons addons(true, QStringLiteral("x"), QStringLiteral("x"));
    QCOMPARE(addons.urlProvider()->supportUrl().host(), QStringLiteral("other.example"));
    theDependencyRegistry()->reset();
}

void tst_Addons::resourcesDirectory()
{
    QCOMPARE(GApplicationAddons::resourcesDirectory(),
             QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources")));
    GApplicationAddons::setResourcesDirectory(QStringLiteral("/r"));
    const GApplicationAddons addons(true, QStringLiteral("x"), QStringLiteral("x"));
    QCOMPARE(addons.urlProvider()->acknowledgementsUrl().toLocalFile(),
             QStringLiteral("/r/documents/Acknowledgements.html"));
    GApplicationAddons::setResourcesDirectory(QString());
}

void tst_Addons::buildDate()
{
    const QDate date = GApplicationAddons::buildDate();
    QVERIFY(date.isValid());
    QCOMPARE(date.toString(QStringLiteral("yyyyMMdd")),
             QString::fromLatin1(BuildConfig::BuildYear) +
                 QString::fromLatin1(BuildConfig::BuildMonth) +
                 QString::fromLatin1(BuildConfig::BuildDay));
}

void tst_Addons::processIsPrepared()
{
    QCOMPARE(qgetenv("QT_BEARER_POLL_TIMEOUT"), QByteArray("864000000"));
    QCOMPARE(qgetenv("QML_BAD_GUI_RENDER_LOOP"), QByteArray("yes"));
    QCOMPARE(qgetenv("QT_QUICK_BACKEND"), QByteArray("software"));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseOpenGLES));
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_UseDesktopOpenGL));
    QCOMPARE(GDebug::mGlobalLogLevel, 6);
}

int main(int argc, char **argv)
{
    GApplicationAddons::basicInitialization();
    qInstallMessageHandler(nullptr);
    QCoreApplication app(argc, argv);
    tst_Addons test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_addons.moc"
