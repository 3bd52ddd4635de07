#pragma once

#include <QString>
#include <QStringList>

/** Mistakes of people who type. Any thread. */
namespace Spelling {

/**
 * The one of @p words, all in lower case, that a misspelt @p text was perhaps meant to be;
 * empty when none is like it.
 */
QString nearest(const QString &text, const QStringList &words);

} // namespace Spelling
