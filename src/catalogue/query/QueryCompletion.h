#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/** How the word before the cursor may go on: names of fields, tags and other known values. */
struct QueryCompletion
{
    struct Candidate
    {
        QString shown;
        /** What takes the word's place, with the colon or the quotation marks that it needs. */
        QString written;
    };

    /** Nothing when the word is complete, or when nothing begins like it. */
    static QueryCompletion at(const QString &query, int cursor, const QStringList &tags);

    bool isEmpty() const { return candidates.isEmpty(); }

    /** What all candidates begin with, when that is longer than the word; else empty. */
    QString commonBeginning() const;

    /** What is replaced. */
    int position = 0;
    int length = 0;
    /** The word without quotation marks. */
    QString word;
    /** In the order of the fields' table or of @c tags. */
    QVector<Candidate> candidates;
};
