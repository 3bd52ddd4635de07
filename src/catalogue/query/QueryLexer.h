#pragma once

#include <QString>
#include <QStringView>
#include <QVector>

struct QueryField;

/** A piece of a query between blanks: a plain word, or a condition when it has a field. */
struct QueryTerm
{
    const QueryField *field = nullptr;
    bool negated = false;
    /** A word that begins with a quotation mark. */
    bool quoted = false;
    /** Where it stands in the query, marks and signs included. */
    int position = 0;
    int length = 0;
    /** Where the value behind the colon begins. */
    int valuePosition = 0;
    /** The word or the value, without its quotation marks. */
    QString text;
};

/** Cuts a query into terms. Any text can be cut. */
class QueryLexer
{
public:
    static QVector<QueryTerm> terms(const QString &query);

    /** Whether the text begins with a known field and its colon, perhaps negated. */
    static bool beginsWithField(const QString &text);

    /** The letters before a colon at the beginning of @p text; empty when there are none. */
    static QString wordBeforeColon(QStringView text);

    /** @p value as it has to be written behind a colon: in quotation marks if it needs them. */
    static QString quoted(const QString &value);
};
