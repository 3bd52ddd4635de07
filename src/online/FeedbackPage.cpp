#include "online/FeedbackPage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QVBoxLayout>

namespace {
constexpr QSize PictureSize(115, 290);
constexpr int PictureGap = 6;
} // namespace

FeedbackPage::FeedbackPage(QWidget *parent, const QString &image)
    : QWidget(parent), m_fields(new QVBoxLayout)
{
    auto *label = new QLabel;
    label->setFixedSize(PictureSize);
    label->setPixmap(picture(image));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(label, 0, Qt::AlignTop);
    layout->addLayout(m_fields, 1);
    m_fields->setContentsMargins(PictureGap, 0, 0, 0);
}

QPixmap FeedbackPage::picture(const QString &image) const
{
    QSvgRenderer renderer(QStringLiteral(":/tnw_tools/feedback/%1").arg(image));
    if (!renderer.isValid())
        return QPixmap();
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPixmap pixmap(PictureSize * devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    return pixmap;
}
