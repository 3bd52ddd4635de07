#include "catalogue/query/QueryLexer.h"

#include "catalogue/query/QueryFields.h"

#include <algorithm>

namespace {

constexpr QLatin1Char Mark('"');

/** What input methods and word processors make of a quotation mark. */
bool isTypographicMark(QChar c)
{
    return c == QChar(0x201c) || c == QChar(0x201d) || c == QChar(0x201e);
}

bool isMark(QChar c)
{
    return c == Mark || isTypographicMark(c);
}

bool isColon(QChar c)
{
    // The second one is what Chinese and Japanese input methods write.
    return c == QLatin1Char(':') || c == QChar(0xff1a);
}

bool isComparisonSign(QChar c)
{
    return c == QLatin1Char('<') || c == QLatin1Char('>') || c == QLatin1Char('=') ||
           c == QChar(0x2264) || c == QChar(0x2265);
}

bool isFieldLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

class Cutter
{
public:
    explicit Cutter(const QString &query) : m_query(query) {}

    bool atEnd()
    {
        while (m_position < m_query.length() && m_query.at(m_position).isSpace())
            ++m_position;
        return m_position == m_query.length();
    }

    QueryTerm next()
    {
        QueryTerm term;
        term.position = m_position;
        term.quoted = isMark(m_query.at(m_position));
        readField(term);
        term.valuePosition = m_position;
        term.text = readValue();
        term.length = m_position - term.position;
        return term;
    }

private:
    void readField(QueryTerm &term)
    {
        const int begin = m_position + (m_query.at(m_position) == QLatin1Char('-') ? 1 : 0);
        const QString name = QueryLexer::wordBeforeColon(QStringView(m_query).mid(begin));
        term.field = name.isEmpty() ? nullptr : QueryFields::named(name);
        if (!term.field)
            return;
        term.negated = begin > m_position;
        m_position = begin + name.length() + 1;
    }

    /** Up to the next blank; in marks, which may stand behind a comparison, blanks count. */
    QString readValue()
    {
        QString value;
        QChar opened;
        bool mayOpen = true;
        for (; m_position < m_query.length(); ++m_position) {
            const QChar c = m_query.at(m_position);
            if (opened == Mark && isDoubledMark()) {
                value.append(Mark);
                ++m_position;
            } else if (!opened.isNull() && closes(opened, c)) {
                opened = QChar();
            } else if (opened.isNull() && mayOpen && isMark(c)) {
                opened = c;
                mayOpen = false;
            } else if (opened.isNull() && c.isSpace()) {
                break;
            } else {
                value.append(c);
                mayOpen = mayOpen && isComparisonSign(c);
            }
        }
        return value;
    }

    static bool closes(QChar opened, QChar c)
    {
        return opened == Mark ? c == Mark : isTypographicMark(c);
    }

    /** Two of them inside marks stand for one. */
    bool isDoubledMark() const
    {
        return QStringView(m_query).mid(m_position, 2) == QLatin1String("\"\"");
    }

    const QString &m_query;
    int m_position = 0;
};

} // namespace

QVector<QueryTerm> QueryLexer::terms(const QString &query)
{
    QVector<QueryTerm> terms;
    Cutter cutter(query);
    while (!cutter.atEnd())
        terms.append(cutter.next());
    return terms;
}

bool QueryLexer::beginsWithField(const QString &text)
{
    const QString name =
        wordBeforeColon(QStringView(text).mid(text.startsWith(QLatin1Char('-')) ? 1 : 0));
    return !name.isEmpty() && QueryFields::named(name);
}

QString QueryLexer::wordBeforeColon(QStringView text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isFieldLetter);
    return end != text.end() && isColon(*end) ? text.left(end - text.begin()).toString()
                                              : QString();
}

QString QueryLexer::quoted(const QString &value)
{
    const bool plain =
        std::none_of(value.begin(), value.end(), [](QChar c) { return c.isSpace() || isMark(c); });
    if (plain)
        return value;
    QString doubled = value;
    doubled.replace(Mark, QLatin1String("\"\""));
    return Mark + doubled + Mark;
}
