#pragma once

#include "catalogue/query/Conditions.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

/** A field of the search language, "tag:" for instance. */
struct QueryField
{
    /** Conditions are tried in this order, the cheap ones first. */
    enum Cost { LookUp, SearchText, SearchThreads };

    QString name;
    /** Other spellings that are understood. */
    QStringList otherNames;
    Condition (*make)(const QString &value, const QDateTime &now);
    Cost cost;
    QString example;
    /** Completes the sentence "Designs that ...", to be translated; see meaning(). */
    const char *meaningText;
    /** The words that may be the value, where these are few; else null. */
    QStringList (*words)();

    /** Translated. */
    QString meaning() const;
};

/** The table of all fields: the parser, the help and the completion go by it. */
class QueryFields
{
public:
    static const QVector<QueryField> &all();

    /** The field of this name, in any case; null when there is none. */
    static const QueryField *named(const QString &name);

    /** The field that a misspelt @p name was perhaps meant to be; null when none is like it. */
    static const QueryField *like(const QString &name);
};
