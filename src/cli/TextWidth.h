#pragma once

#include <QString>

/** Text as a terminal sets it, in columns: wide characters take two, combining marks none. */
namespace TextWidth {

int of(const QString &text);

/** @p text with blanks behind it, up to @p columns. */
QString padded(const QString &text, int columns);

/** As much of the front of @p text as fits into @p columns. */
QString cut(const QString &text, int columns);

} // namespace TextWidth
