#pragma once

#include <QDialog>

/** The plain about dialog: icon, name, version and build date of the application. */
class About : public QDialog
{
    Q_OBJECT

public:
    explicit About(QWidget *parent = nullptr);

    /** The version and the day of the build, in the language of the program. */
    static QString versionText();
};
