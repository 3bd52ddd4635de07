#pragma once

#include "catalogue/query/Conditions.h"
#include "catalogue/query/PlainSearch.h"
#include "catalogue/query/QueryRemark.h"

#include <optional>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QVector>

struct QueryTerm;

/**
 * What the user searches for, ready to be held against designs. The language:
 *
 *     query      = { blank } { term { blank } }
 *     term       = condition | word
 *     condition  = [ "-" ] field ":" value      a minus asks for the opposite
 *     value      = { "<" | ">" | "=" } '"' text '"' | text without blanks
 *     word       = '"' text '"' | text without blanks
 *
 * QueryFields has the fields; their names stand in any case. Inside quotation marks two of
 * them stand for one. The last closing mark may be missing.
 *
 * A text that has no condition, not even one in quotation marks, is plain: all of it, blanks
 * and marks included, is what PlainSearch takes. Otherwise a design must fulfil all the
 * conditions and match the words, joined by single blanks, as one plain text.
 *
 * Main thread only.
 */
class Query
{
    Q_DECLARE_TR_FUNCTIONS(Query)

public:
    /** Every design matches. */
    Query() = default;

    /** Never throws for what @p text is. Ages count from @p now. */
    static Query parse(const QString &text, const QDateTime &now = QDateTime::currentDateTime());

    /** False when the text holds a mistake: then no more than the remark is of use. */
    bool isValid() const { return !m_remark || m_remark->kind != QueryRemark::Mistake; }

    /** The most important thing to be said about the text, if there is any. */
    const std::optional<QueryRemark> &remark() const { return m_remark; }

    bool matches(const IFile &file, const DuplicateIndex &duplicates) const;

    /** All there is to this query where it is plain text: nothing but that is looked at. */
    const std::optional<PlainSearch> &plainText() const { return m_plainText; }

private:
    struct Test
    {
        int cost;
        bool negated;
        Condition condition;
    };

    void add(const QueryTerm &term, const QDateTime &now);
    void addPlain(const QString &text);
    void hintAt(const QueryTerm &term);
    void remarkOn(QueryRemark::Kind kind, const QueryTerm &term, const QString &message);

    QVector<Test> m_tests;
    std::optional<PlainSearch> m_plainText;
    std::optional<QueryRemark> m_remark;
};
