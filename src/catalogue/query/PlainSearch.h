#pragma once

#include <QString>
#include <QStringMatcher>
#include <QStringView>

class IFile;

/**
 * Text without fields, held against the base name and the notes of designs without
 * regard to case. Up to two characters must stand as a whole word, except in scripts
 * that write without blanks; from three on the text is found inside words too.
 */
class PlainSearch
{
public:
    /** An empty text wants a word boundary somewhere. */
    explicit PlainSearch(const QString &text);

    bool matches(const IFile &file) const;
    bool matches(const QString &path, const QString &notes) const;

private:
    bool isIn(QStringView text) const;

    QStringMatcher m_matcher;
    qsizetype m_length;
    bool m_wholeWord;
};
