#include "app/application/HooplineApplication.h"
#include "app/TestWindow.h"
#include "base/BuildConfig.h"
#include "base/GlobalSettings.h"
#include "online/AutoUpdater.h"
#include "online/metrics/Metrics.h"
#include "ui/PreferencesDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

class tst_preferences : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatIsStored();
    void appliesUnitsAtOnce();
    void appliesUpdateChoices();
    void appliesTracking();
    void showsTheRealIdentifier();
    void textIsNotClipped();

private:
    template <typename T>
    static T *child(const QDialog &dialog, const char *name)
    {
        return dialog.findChild<T *>(QString::fromLatin1(name));
    }
};

void tst_preferences::showsWhatIsStored()
{
    GlobalSettings().setImperialUnits(true);
    GSettings().setAutoUpdatesEnabled(false);
    PreferencesDialog dialog(nullptr);
    QVERIFY(child<QCheckBox>(dialog, "useImperialUnits")->isChecked());
    QVERIFY(!child<QCheckBox>(dialog, "autoUpdatesCheckBox")->isChecked());
    QCOMPARE(child<QLineEdit>(dialog, "appDataDirectory")->text(),
             GlobalSettings().applicationDataPath());
    auto *ok = child<QPushButton>(dialog, "okButton");
    QTimer::singleShot(0, ok, &QPushButton::click);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void tst_preferences::appliesUnitsAtOnce()
{
    GlobalSettings().setImperialUnits(false);
    PreferencesDialog dialog(nullptr);
    bool seen = false;
    const auto connection =
        connect(HooplineApplication::instance(), &HooplineApplication::syncGlobalSettings,
                [&seen] { seen = GlobalSettings().imperialUnits(); });
    child<QCheckBox>(dialog, "useImperialUnits")->click();
    disconnect(connection);
    QVERIFY(seen);
}

void tst_preferences::appliesUpdateChoices()
{
    PreferencesDialog dialog(nullptr);
    auto *automatic = child<QCheckBox>(dialog, "autoUpdatesCheckBox");
    auto *beta = child<QCheckBox>(dialog, "includeBetaUpdatesCheckBox");
    for (int i = 0; i < 2; ++i) {
        automatic->click();
        QCOMPARE(theAutoUpdater()->autoUpdatesEnabled(), automatic->isChecked());
        beta->click();
        QCOMPARE(theAutoUpdater()->betaUpdatesEnabled(), beta->isChecked());
    }
}

void tst_preferences::appliesTracking()
{
    PreferencesDialog dialog(nullptr);
    auto *statistics = child<QCheckBox>(dialog, "sendStatisticsCheckBox");
    QVERIFY(!statistics->isChecked());
    statistics->click();
    QVERIFY(!Metrics::instance()->doNotTrack());
    QVERIFY(GSettings().sendStatisticsEnabled());
    statistics->click();
    QVERIFY(Metrics::instance()->doNotTrack());
}

void tst_preferences::showsTheRealIdentifier()
{
    PreferencesDialog dialog(nullptr);
    const auto *label = child<QLabel>(dialog, "trackingDescriptionLabel");
    const QString identifier = GSettings().statisticsUUID();
    QCOMPARE(identifier.size(), 32);
    QVERIFY(label->text().contains(QStringLiteral("Random user indentifier (%1)").arg(identifier)));
    QVERIFY(label->text().contains(
        QStringLiteral("href=\"%1\"").arg(QLatin1String(BuildConfig::PrivacyUrl))));
}

void tst_preferences::textIsNotClipped()
{
    PreferencesDialog dialog(nullptr);
    child<QTabWidget>(dialog, "tabWidget")->setCurrentIndex(1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto *label = child<QLabel>(dialog, "trackingDescriptionLabel");
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

int main(int argc, char **argv)
{
    HooplineApplication::setWindowFactory([] { return new TestWindow; });
    HooplineApplication application(argc, argv);
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    Metrics::setEndpoint(QUrl(QStringLiteral("http://127.0.0.1:9")));
    Metrics::createInstance(QStringLiteral("40817263"));
    tst_preferences test;
    const int result = QTest::qExec(&test, argc, argv);
    Metrics::deleteInstance();
    return result;
}

#include "tst_preferences.moc"
