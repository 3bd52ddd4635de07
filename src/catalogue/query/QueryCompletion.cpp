#include "catalogue/query/QueryCompletion.h"

#include "catalogue/query/QueryFields.h"
#include "catalogue/query/QueryLexer.h"

#include <algorithm>

namespace {

QStringList valuesOf(const QueryField &field, const QStringList &tags)
{
    if (field.name == QLatin1String("tag"))
        return tags;
    return field.words ? field.words() : QStringList();
}

int commonLength(const QString &a, const QString &b)
{
    const int longest = std::min(a.length(), b.length());
    int length = 0;
    while (length < longest && a.at(length).toCaseFolded() == b.at(length).toCaseFolded())
        ++length;
    return length;
}

void addFields(QueryCompletion &completion)
{
    for (const QueryField &field : QueryFields::all()) {
        const QString written = field.name + QLatin1Char(':');
        if (written.startsWith(completion.word, Qt::CaseInsensitive))
            completion.candidates.append({written, written});
    }
}

void addValues(QueryCompletion &completion, const QStringList &values)
{
    for (const QString &value : values) {
        if (value.startsWith(completion.word, Qt::CaseInsensitive))
            completion.candidates.append({value, QueryLexer::quoted(value) + QLatin1Char(' ')});
    }
}

bool isComplete(const QueryCompletion &completion)
{
    return std::any_of(completion.candidates.begin(), completion.candidates.end(),
                       [&completion](const QueryCompletion::Candidate &candidate) {
                           return candidate.shown == completion.word;
                       });
}

} // namespace

QueryCompletion QueryCompletion::at(const QString &query, int cursor, const QStringList &tags)
{
    QueryCompletion completion;
    const bool insideWord = cursor < query.length() && !query.at(cursor).isSpace();
    const QVector<QueryTerm> terms = QueryLexer::terms(query.left(cursor));
    if (insideWord || terms.isEmpty())
        return completion;
    const QueryTerm &term = terms.constLast();
    if (term.quoted || term.position + term.length != cursor)
        return completion;
    const bool negated = !term.field && term.text.startsWith(QLatin1Char('-'));
    completion.position = term.valuePosition + (negated ? 1 : 0);
    completion.length = cursor - completion.position;
    completion.word = term.text.mid(negated ? 1 : 0);
    if (term.field)
        addValues(completion, valuesOf(*term.field, tags));
    else if (!completion.word.isEmpty())
        addFields(completion);
    if (isComplete(completion))
        completion.candidates.clear();
    return completion;
}

QString QueryCompletion::commonBeginning() const
{
    if (candidates.isEmpty())
        return {};
    const QString &first = candidates.constFirst().shown;
    int length = first.length();
    for (const Candidate &candidate : candidates)
        length = std::min(length, commonLength(first, candidate.shown));
    return length > word.length() ? first.left(length) : QString();
}
