#pragma once

#include <QDialog>

class QPixmap;

/** The enlarged preview of one design. Any key and any click closes it. */
class PreviewSheet : public QDialog
{
    Q_OBJECT

public:
    PreviewSheet(QWidget *parent, const QPixmap &preview);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};
