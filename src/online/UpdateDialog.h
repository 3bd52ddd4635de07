#pragma once

#include "online/AvailableUpdate.h"

#include <QDialog>

class QHBoxLayout;
class QVBoxLayout;

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
    void addPicture(QHBoxLayout *layout);
    void addTexts(QVBoxLayout *layout);
    void addButtons(QVBoxLayout *layout);

    AvailableUpdate m_update;
};
