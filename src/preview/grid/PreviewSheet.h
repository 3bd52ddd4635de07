#pragma once

#include <QDialog>

class QPixmap;

/** The enlarged preview of one design. Any key and any click closes it. */
class PreviewSheet : public QDialog
{
    Q_OBJECT

public:
    /**
     * @param preview on the ground that the sheet shows around it
     * @param name of the file, told below the picture where there is one
     */
    PreviewSheet(QWidget *parent, const QPixmap &preview, const QString &name = QString());

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};
