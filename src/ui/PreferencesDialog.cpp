#include "ui/PreferencesDialog.h"

#include "app/application/HooplineApplication.h"
#include "base/BuildConfig.h"
#include "base/GlobalSettings.h"
#include "online/AutoUpdater.h"
#include "online/metrics/Metrics.h"
#include "ui_PreferencesDialog.h"

#include <QDesktopServices>
#include <QUrl>

PreferencesDialog::PreferencesDialog(QWidget *parent)
    : QDialog(parent, Qt::Sheet), m_ui(std::make_unique<Ui::PreferencesDialog>())
{
    m_ui->setupUi(this);
    GlobalSettings settings;
    m_ui->appDataDirectory->setText(settings.applicationDataPath());
    m_ui->appDataDirectory->setCursorPosition(0);
    m_ui->useImperialUnits->setChecked(settings.imperialUnits());
    updatePrivacyTab();
}

PreferencesDialog::~PreferencesDialog() = default;

void PreferencesDialog::updatePrivacyTab()
{
    QLabel *label = m_ui->trackingDescriptionLabel;
    label->setText(label->text().arg(GSettings().statisticsUUID().toHtmlEscaped(),
                                     QString::fromLatin1(BuildConfig::PrivacyUrl)));
    // Qt opens no dialog higher than two thirds of the screen, and the wrapped text would give way.
    const int width = label->sizeHint().width();
    label->setMinimumSize(width, label->heightForWidth(width));
    const AutoUpdater *updater = theAutoUpdater();
    m_ui->autoUpdatesCheckBox->setChecked(updater->autoUpdatesEnabled());
    m_ui->includeBetaUpdatesCheckBox->setChecked(updater->betaUpdatesEnabled());
    m_ui->sendStatisticsCheckBox->setChecked(!Metrics::instance()->doNotTrack());
}

void PreferencesDialog::on_useImperialUnits_clicked(bool checked)
{
    GlobalSettings().setImperialUnits(checked);
    if (auto *application = HooplineApplication::instance())
        application->emitSyncGlobalSettings();
}

void PreferencesDialog::on_openAppDataDirectory_clicked()
{
    QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + m_ui->appDataDirectory->text()));
}

void PreferencesDialog::on_autoUpdatesCheckBox_clicked(bool checked)
{
    theAutoUpdater()->setAutoUpdates(checked);
}

void PreferencesDialog::on_includeBetaUpdatesCheckBox_clicked(bool checked)
{
    theAutoUpdater()->setBetaUpdatesEnabled(checked);
}

void PreferencesDialog::on_sendStatisticsCheckBox_clicked(bool checked)
{
    Metrics::instance()->setDoNotTrack(!checked);
}
