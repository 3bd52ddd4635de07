#pragma once

#include <memory>
#include <QDialog>

class UserDataMemory;

namespace Ui {
class PreferencesDialog;
}

/** The settings of the program. Every change applies at once; there is no way back but to change
 * it again. */
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param memory what is known of absent designs, not owned; null where nobody remembers */
    explicit PreferencesDialog(QWidget *parent, UserDataMemory *memory = nullptr);
    ~PreferencesDialog() override;

private slots:
    void on_useImperialUnits_clicked(bool checked);
    void on_openAppDataDirectory_clicked();
    void on_forgetAbsentDesigns_clicked();
    void on_autoUpdatesCheckBox_clicked(bool checked);
    void on_includeBetaUpdatesCheckBox_clicked(bool checked);
    void on_sendStatisticsCheckBox_clicked(bool checked);

private:
    void updatePrivacyTab();
    void updateAbsentDesigns();

    const std::unique_ptr<Ui::PreferencesDialog> m_ui;
    UserDataMemory *m_memory;
};
