#pragma once

#include <QColor>
#include <QDialog>

/**
 * The product's about dialog: a coloured banner with icon, name, version and build date beside
 * the licences, which are read from ":/about.html".
 */
class About2 : public QDialog
{
    Q_OBJECT

public:
    explicit About2(QWidget *parent = nullptr);

    /**
     * Chooses the look of every about dialog made from now on: the colour of the banner, which
     * should be deep enough for white text, and its width in pixels. May be called before the
     * application object exists.
     */
    static void configure(const QColor &bannerColor, int bannerWidth);

private:
    QWidget *createBanner();
    QWidget *createTextPane();
    static QString qtNotice();
};
