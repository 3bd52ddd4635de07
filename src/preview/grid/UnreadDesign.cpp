#include "preview/grid/UnreadDesign.h"

#include "catalogue/records/IFile.h"
#include "widgets/style/WidgetHelper.h"

#include <QFont>
#include <QPainter>
#include <QPen>

namespace {

constexpr int Inset = 10; // scene units
constexpr int Rounding = 8;
constexpr int TextHeight = 17;
constexpr QRgb Ink = 0xFF767676;
constexpr QRgb InkOnDark = 0xFFAEB6B9;

} // namespace

bool UnreadDesign::is(const IFile &file)
{
    // What was looked into and could not be read has a date at least.
    return file.contentHash().isEmpty() && file.modificationDate() == 0 &&
           !file.designSize().isValid();
}

QString UnreadDesign::text()
{
    return tr("Not read yet");
}

void UnreadDesign::paint(QPainter *painter, const QRect &box)
{
    const QRect frame = box.adjusted(Inset, Inset, -Inset, -Inset);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor ink(WidgetHelper::isDarkMode() ? InkOnDark : Ink);
    painter->setPen(QPen(ink, 2, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(frame, Rounding, Rounding);
    QFont font;
    font.setPixelSize(TextHeight);
    font.setBold(true);
    painter->setFont(font);
    const QRect upper = frame.adjusted(Inset, 0, -Inset, -frame.height() / 2);
    painter->drawText(upper, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, text());
    font.setBold(false);
    font.setPixelSize(TextHeight - 2);
    painter->setFont(font);
    const QRect lower = frame.adjusted(Inset, frame.height() / 2 + Inset, -Inset, 0);
    painter->drawText(lower, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                      tr("\"Rescan\" reads it."));
    painter->restore();
}
