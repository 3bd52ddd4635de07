#include "preview/grid/PreviewSheet.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr double Enlargement = 1.5;
constexpr int CaptionMargin = 8; // pixels

QColor groundOf(const QPixmap &preview)
{
    const QImage corner = preview.copy(0, 0, 1, 1).toImage();
    return corner.isNull() ? QColor(Qt::white) : corner.pixelColor(0, 0);
}

/** Each pixel with a little of its neighbors. */
QRgb smoothedPixel(const QImage &picture, int x, int y)
{
    constexpr int Weights[3][3] = {{1, 2, 1}, {2, 8, 2}, {1, 2, 1}};
    constexpr int Sum = 20;
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int row = -1; row <= 1; ++row) {
        const int neighborY = qBound(0, y + row, picture.height() - 1);
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(neighborY));
        for (int column = -1; column <= 1; ++column) {
            const QRgb pixel = line[qBound(0, x + column, picture.width() - 1)];
            const int weight = Weights[row + 1][column + 1];
            red += weight * qRed(pixel);
            green += weight * qGreen(pixel);
            blue += weight * qBlue(pixel);
        }
    }
    return qRgb(red / Sum, green / Sum, blue / Sum);
}

/** Enlarging would show the steps of a picture that is painted without smooth edges. */
QImage smoothed(const QImage &preview)
{
    const QImage picture = preview.convertToFormat(QImage::Format_RGB32);
    QImage smooth(picture.size(), picture.format());
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(smooth.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = smoothedPixel(picture, x, y);
        }
    }
    return smooth;
}

// As many device pixels as the screen has for the enlarged picture.
QPixmap enlarged(const QPixmap &preview, qreal ratio)
{
    const double factor = Enlargement * ratio;
    QPixmap pixmap = QPixmap::fromImage(smoothed(preview.toImage())
                                            .scaled(qRound(preview.width() * factor),
                                                    qRound(preview.height() * factor),
                                                    Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

PreviewSheet::PreviewSheet(QWidget *parent, const QPixmap &preview, const QString &name)
    : QDialog(parent, Qt::Sheet)
{
    setWindowTitle(tr("Preview"));
    auto *picture = new QLabel;
    picture->setStyleSheet(
        QStringLiteral("background: %1; border: 1px solid palette(mid); border-radius: 6px; "
                       "padding: 10px; margin: 20px; margin-bottom: 0")
            .arg(groundOf(preview).name()));
    picture->setAccessibleName(tr("Preview"));
    picture->setPixmap(enlarged(preview, devicePixelRatioF()));

    auto *caption = new QLabel;
    caption->setTextFormat(Qt::PlainText);
    caption->setAlignment(Qt::AlignCenter);
    caption->setMargin(CaptionMargin);
    const int width = picture->sizeHint().width() - 2 * CaptionMargin;
    caption->setText(caption->fontMetrics().elidedText(name, Qt::ElideMiddle, width));
    if (name.isEmpty()) {
        caption->hide();
    }

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
    // No wider than the picture, however wide the sheet is.
    layout->addWidget(picture, 0, Qt::AlignHCenter);
    layout->addWidget(caption);
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
