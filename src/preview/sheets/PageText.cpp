#include "preview/sheets/PageText.h"

#include "preview/sheets/PaperUnits.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextLayout>

namespace {

constexpr double LineSpacing = 1.25;
/** For texts in the order of their own letters, but where the page wants them. */
constexpr int Flags = int(Qt::TextSingleLine) | int(Qt::AlignAbsolute);

} // namespace

QFont PageText::font(double points, Weight weight)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(qRound(points * PaperUnits::Point));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(weight == Bold);
    return font;
}

double PageText::lineHeight(const QFont &font)
{
    return font.pixelSize() * LineSpacing;
}

double PageText::width(const QFont &font, const QString &text)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

QStringList PageText::wrapped(const QFont &font, const QString &text, double width, int most)
{
    QString paragraphs = text.trimmed();
    if (paragraphs.isEmpty())
        return {};
    paragraphs.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(paragraphs, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == most) {
            const QString rest = paragraphs.mid(line.textStart()).simplified();
            lines.append(QFontMetricsF(font).elidedText(rest, Qt::ElideRight, width));
            break;
        }
        lines.append(paragraphs.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

void PageText::drawLines(QPainter &painter, const QFont &font, const QRectF &area,
                         const QStringList &lines, Qt::Alignment alignment, QRgb color)
{
    const double height = lineHeight(font);
    QRectF row(area.topLeft(), QSizeF(area.width(), height));
    painter.setFont(font);
    painter.setPen(QColor(color));
    for (const QString &line : lines) {
        painter.drawText(row, Flags | int(alignment | Qt::AlignVCenter), line);
        row.translate(0, height);
    }
}

void PageText::drawLine(QPainter &painter, const QFont &font, const QRectF &area,
                        const QString &text, Qt::Alignment alignment, QRgb color,
                        Qt::TextElideMode elide)
{
    painter.setFont(font);
    painter.setPen(QColor(color));
    painter.drawText(area, Flags | int(alignment | Qt::AlignVCenter),
                     QFontMetricsF(font).elidedText(text, elide, area.width()));
}
