#pragma once

#include <QRegExp>

/**
 * Wildcards as QRegExp reads them: "*" runs across "/", which it does not in the wildcards
 * that QRegularExpression knows. Qt 6 keeps the class in its library for Qt 5's leavings.
 */
using WildcardPattern = QRegExp;

/** The pattern for a whole text, whatever the case of its letters. */
inline WildcardPattern wildcardPattern(const QString &wildcard)
{
    return WildcardPattern(wildcard, Qt::CaseInsensitive, WildcardPattern::Wildcard);
}
