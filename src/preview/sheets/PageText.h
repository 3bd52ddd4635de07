#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <Qt>

class QPainter;

/** Text on paper: all lengths are hundredths of a millimetre. */
namespace PageText {

/** What is less important than the rest. */
constexpr QRgb Faint = 0xFF5A5A5A;
/** Frames and lines that lead the eye. */
constexpr QRgb Line = 0xFFC4C4C4;

enum Weight { Regular, Bold };
/** A font of the program's family that is as wide on the screen as on paper. */
QFont font(double points, Weight weight = Regular);

double lineHeight(const QFont &font);
double width(const QFont &font, const QString &text);

/**
 * Lines of at most that width, broken between words where that is possible. Where there
 * are more than @p most, the last one of those ends with an ellipsis.
 */
QStringList wrapped(const QFont &font, const QString &text, double width, int most);

/** Lines one below the other, from the top of @p area. */
void drawLines(QPainter &painter, const QFont &font, const QRectF &area, const QStringList &lines,
               Qt::Alignment alignment = Qt::AlignLeft, QRgb color = 0xFF000000);

/** One line in the middle of the height of @p area; what does not fit is left out at @p elide. */
void drawLine(QPainter &painter, const QFont &font, const QRectF &area, const QString &text,
              Qt::Alignment alignment = Qt::AlignLeft, QRgb color = 0xFF000000,
              Qt::TextElideMode elide = Qt::ElideRight);

} // namespace PageText
