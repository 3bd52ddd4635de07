#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVector>

/** Colours by the names that people have for them, in the languages of the program. */
namespace ColorNames {

/**
 * The shades that @p text stands for: one for "#c03020" or "#c32", several that span a
 * common name in English, German or Chinese, one for another name of the web's colours.
 * Case and blanks take no part. Empty for what is no colour.
 */
QVector<QColor> shadesOf(const QString &text);

/** The common names in English. */
QStringList common();

} // namespace ColorNames
