#include "preview/grid/PreviewSheet.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr double Enlargement = 1.5;

// As many device pixels as the screen has for the enlarged picture.
QPixmap enlarged(const QPixmap &preview, qreal ratio)
{
    const double factor = Enlargement * ratio;
    QPixmap pixmap =
        preview.scaled(qRound(preview.width() * factor), qRound(preview.height() * factor),
                       Qt::KeepAspectRatio, Qt::SmoothTransformation);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

PreviewSheet::PreviewSheet(QWidget *parent, const QPixmap &preview) : QDialog(parent, Qt::Sheet)
{
    setWindowTitle(tr("Preview"));
    auto *picture = new QLabel;
    picture->setStyleSheet(QStringLiteral("background: white; border: 1px dotted gray; "
                                          "padding: 10px; margin: 20px; margin-bottom: 0"));
    picture->setAccessibleName(tr("Preview"));
    picture->setPixmap(enlarged(preview, devicePixelRatioF()));

    auto *closeButton = new QPushButton(tr("Close"));
    closeButton->setFocusPolicy(Qt::NoFocus);
    closeButton->setAttribute(Qt::WA_MacSmallSize);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::close);

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(20, 10, 20, 10);
    buttons->addStretch();
    buttons->addWidget(closeButton);
    buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(picture);
    layout->addLayout(buttons);
}

void PreviewSheet::keyPressEvent(QKeyEvent *event)
{
    // The key that opened the sheet may still be held down.
    if (!event->isAutoRepeat()) {
        close();
    }
}

void PreviewSheet::mousePressEvent(QMouseEvent *)
{
    close();
}
