#pragma once

#include <QString>

/**
 * Texts in a form that XML brings back as it was. XML has no place for control
 * characters and halves of surrogate pairs, and drops a text of nothing but blanks;
 * names of files and what designs call themselves may be either. Such characters are
 * written as a sign for private use and four hexadecimal digits.
 */
class StoredText
{
public:
    /** @p text for an element; nearly always the same. */
    static QString encode(const QString &text);

    /** What was encoded. A text that never was comes back as it is. */
    static QString decode(const QString &text);
};
