#include "app/application/HooplineApplication.h"
#include "app/TestWindow.h"
#include "base/BuildConfig.h"
#include "base/GlobalSettings.h"
#include "catalogue/models/FilterModel.h"
#include "catalogue/records/File.h"
#include "catalogue/records/Project.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "online/AutoUpdater.h"
#include "online/metrics/Metrics.h"
#include "support/MessageBoxes.h"
#include "support/Rows.h"
#include "ui/panels/FilterBar.h"
#include "ui/PreferencesDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_preferences : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatIsStored()
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

    void appliesUnitsAtOnce()
    {
        GlobalSettings().setImperialUnits(false);
        PreferencesDialog dialog(nullptr);
        const auto project = QSharedPointer<Project>::create();
        FilterModel filter(project);
        const FilterBar bar(nullptr, project, &filter);
        child<QCheckBox>(dialog, "useImperialUnits")->click();
        QVERIFY(GlobalSettings().imperialUnits());
        QCOMPARE(bar.findChild<QLabel *>("maxSizeLabel")->text(), "Max. size (in):");
    }

    void appliesUpdateChoices()
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

    void appliesTracking()
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

    void showsTheRealIdentifier()
    {
        PreferencesDialog dialog(nullptr);
        const auto *label = child<QLabel>(dialog, "trackingDescriptionLabel");
        const QString identifier = GSettings().statisticsUUID();
        QCOMPARE(identifier.size(), 32);
        QVERIFY(
            label->text().contains(QStringLiteral("Random user indentifier (%1)").arg(identifier)));
        QVERIFY(label->text().contains(
            QStringLiteral("href=\"%1\"").arg(QLatin1String(BuildConfig::PrivacyUrl))));
    }

    void textIsNotClipped()
    {
        PreferencesDialog dialog(nullptr);
        child<QTabWidget>(dialog, "tabWidget")->setCurrentIndex(1);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const auto *label = child<QLabel>(dialog, "trackingDescriptionLabel");
        QVERIFY(label->height() >= label->heightForWidth(label->width()));
    }

    void forgetsAbsentDesigns_data()
    {
        const Rows<int, int> row("button", "left");

        row("no", int(QMessageBox::No), 1);
        row("yes", int(QMessageBox::Yes), 0);
    }

    void forgetsAbsentDesigns()
    {
        QFETCH(int, button);
        QFETCH(int, left);
        const QTemporaryDir folder;
        const auto project = QSharedPointer<Project>::create();
        const auto file = QSharedPointer<File>::create(project.data());
        file->setAbsoluteFilePath("/designs/rose.dst");
        file->setContentHash(QByteArray(16, 'h'));
        file->setNotes("years of evenings");
        project->setFiles({file});
        UserDataMemory memory(project, folder.filePath("user-data.sqlite"));
        memory.adopt(std::async(std::launch::deferred, [] { return QByteArray("hash"); }).share());
        project->setFiles({});

        PreferencesDialog dialog(nullptr, &memory);
        auto *forget = child<QPushButton>(dialog, "forgetAbsentDesigns");
        const auto *label = child<QLabel>(dialog, "absentDesignsLabel");
        QVERIFY2(label->text().contains(QLatin1Char('1')), qPrintable(label->text()));
        MessageBoxes boxes{QMessageBox::StandardButton(button)};
        forget->click();
        QCOMPARE(boxes.count(), 1);
        QCOMPARE(memory.absentDesigns(), left);
        QCOMPARE(forget->isEnabled(), left > 0);
        QCOMPARE(label->text().contains(QLatin1Char('1')), left > 0);
    }

private:
    template <typename T>
    static T *child(const QDialog &dialog, const char *name)
    {
        return dialog.findChild<T *>(QString::fromLatin1(name));
    }
};

int main(int argc, char **argv)
{
    HooplineApplication::setWindowFactory([] { return new TestWindow; });
    HooplineApplication application(argc, argv);
    GSettings().flushSettings({});
    GSettings().setAutoUpdatesEnabled(false);
    GSettings().setCrashLoggerLastCheck(QDateTime::currentDateTime());
    Metrics::setEndpoint(QUrl("http://127.0.0.1:9"));
    Metrics::createInstance("40817263");
    tst_preferences test;
    const int result = QTest::qExec(&test, argc, argv);
    Metrics::deleteInstance();
    return result;
}

#include "tst_preferences.moc"
