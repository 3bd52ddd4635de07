#include "ui/PreferencesDialog.h"

#include "app/application/HooplineApplication.h"
#include "base/BuildConfig.h"
#include "base/GlobalSettings.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "online/AutoUpdater.h"
#include "online/metrics/Metrics.h"
#include "ui_PreferencesDialog.h"
#include "widgets/controls/GMessageBox.h"

#include <QDesktopServices>
#include <QUrl>

PreferencesDialog::PreferencesDialog(QWidget *parent, UserDataMemory *memory)
    : QDialog(parent, Qt::Sheet), m_ui(std::make_unique<Ui::PreferencesDialog>()), m_memory(memory)
{
    m_ui->setupUi(this);
    GlobalSettings settings;
    m_ui->appDataDirectory->setText(settings.applicationDataPath());
    m_ui->appDataDirectory->setCursorPosition(0);
    m_ui->useImperialUnits->setChecked(settings.imperialUnits());
    updateAbsentDesigns();
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

void PreferencesDialog::updateAbsentDesigns()
{
    m_ui->absentDesignsLabel->setVisible(m_memory);
    m_ui->forgetAbsentDesigns->setVisible(m_memory);
    if (!m_memory)
        return;
    const int designs = m_memory->absentDesigns();
    m_ui->absentDesignsLabel->setText(
        designs > 0 ? tr("The tags, notes and stars of %n design(s) that left the catalogue are "
                         "remembered. Designs that come back get them back.",
                         nullptr, designs)
                    : tr("The tags, notes and stars of designs that leave the catalogue are "
                         "remembered. For now there are none."));
    m_ui->forgetAbsentDesigns->setEnabled(designs > 0);
}

void PreferencesDialog::on_forgetAbsentDesigns_clicked()
{
    const auto answer = GMessageBox::question(
        tr("Do you want to forget the tags, notes and stars of %n design(s)?", nullptr,
           m_memory->absentDesigns()),
        tr("This cannot be undone. Designs in the catalogue keep theirs."), this);
    if (answer != QMessageBox::Yes)
        return;
    m_memory->forgetAbsentDesigns();
    updateAbsentDesigns();
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
