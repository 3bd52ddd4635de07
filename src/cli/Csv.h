#pragma once

#include <QLatin1Char>
#include <QList>
#include <QString>
#include <QStringList>

/** Values with a separator between them, quoted as in RFC 4180. */
namespace Csv {

constexpr QLatin1Char Comma(',');
/** The tags of a design are one field, which is such a line in itself. */
constexpr QLatin1Char TagSeparator(';');

QString line(const QStringList &fields, QLatin1Char separator = Comma);

/** The records of @p text; empty lines are none. @throws Error for a quotation left open */
QList<QStringList> parse(const QString &text, QLatin1Char separator = Comma);

} // namespace Csv
