#pragma once

#include "online/AvailableUpdate.h"

#include <QDialog>

class QPushButton;

/**
 * Offers a newer release: install opens its download in the browser, skip never
 * offers this version by itself again, and remind-later, which is also what
 * closing the dialog means, leaves everything as it was.
 */
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    explicit UpdateDialog(const AvailableUpdate &update, QWidget *parent = nullptr);

private slots:
    void install();
    void skip();

private:
    void addTexts(class QVBoxLayout *layout);
    void addButtons(class QVBoxLayout *layout);

    AvailableUpdate m_update;
};
