#pragma once

#include <QRegExp>
#include <QString>

class IFile;

/** What the user searches for, held against the base name and the notes of designs. */
class SearchExpression
{
public:
    /** Before the first text every design matches; an emptied text wants a word boundary. */
    void setText(const QString &text);

    bool matches(const IFile &file) const;

private:
    bool isIn(const QString &text) const { return m_expression.indexIn(text) >= 0; }

    QRegExp m_expression;
};
