#include "catalogue/query/Query.h"

#include "base/Error.h"
#include "catalogue/query/QueryFields.h"
#include "catalogue/query/QueryLexer.h"

#include <algorithm>
#include <QStringList>

namespace {

/** A field in quotation marks counts: the marks are there to make a plain word of it. */
bool isOrQuotesCondition(const QueryTerm &term)
{
    return term.field || (term.quoted && QueryLexer::beginsWithField(term.text));
}

} // namespace

Query Query::parse(const QString &text, const QDateTime &now)
{
    Query query;
    QStringList words;
    const QVector<QueryTerm> terms = QueryLexer::terms(text);
    for (const QueryTerm &term : terms) {
        if (term.field) {
            query.add(term, now);
        } else if (!term.text.isEmpty()) {
            query.hintAt(term);
            words.append(term.text);
        }
    }
    if (std::none_of(terms.begin(), terms.end(), isOrQuotesCondition)) {
        query.addPlain(text);
        query.m_plainText = PlainSearch(text);
    } else if (!words.isEmpty()) {
        query.addPlain(words.join(QLatin1Char(' ')));
    }
    std::stable_sort(query.m_tests.begin(), query.m_tests.end(),
                     [](const Test &a, const Test &b) { return a.cost < b.cost; });
    return query;
}

void Query::add(const QueryTerm &term, const QDateTime &now)
{
    const QueryField &field = *term.field;
    if (term.text.isEmpty()) {
        remarkOn(QueryRemark::Unfinished, term,
                 tr("%1: what is it to be? For instance %2").arg(field.name, field.example));
        return;
    }
    try {
        m_tests.append({field.cost, term.negated, field.make(term.text, now)});
    } catch (const Error &error) {
        remarkOn(QueryRemark::Mistake, term,
                 QStringLiteral("%1: %2").arg(field.name, error.toString()));
    }
}

void Query::addPlain(const QString &text)
{
    const PlainSearch search(text);
    m_tests.append(
        {QueryField::SearchText, false,
         [search](const IFile &file, const DuplicateIndex &) { return search.matches(file); }});
}

void Query::hintAt(const QueryTerm &term)
{
    const int begin = term.text.startsWith(QLatin1Char('-')) ? 1 : 0;
    const QString name = QueryLexer::wordBeforeColon(QStringView(term.text).mid(begin));
    const QueryField *meant = term.quoted || name.isEmpty() ? nullptr : QueryFields::like(name);
    if (meant)
        remarkOn(QueryRemark::Hint, term,
                 tr("'%1:' is searched as text. Is '%2:' meant?").arg(name, meant->name));
}

void Query::remarkOn(QueryRemark::Kind kind, const QueryTerm &term, const QString &message)
{
    if (!m_remark || kind < m_remark->kind)
        m_remark = QueryRemark{kind, term.position, term.length, message};
}

bool Query::matches(const IFile &file, const DuplicateIndex &duplicates) const
{
    return std::all_of(m_tests.begin(), m_tests.end(), [&](const Test &test) {
        return test.condition(file, duplicates) != test.negated;
    });
}
