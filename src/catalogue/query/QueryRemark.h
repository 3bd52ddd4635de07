#pragma once

#include <QString>

/** What is to be said about a passage of a query. */
struct QueryRemark
{
    enum Kind {
        Mistake,    ///< the query can't be understood
        Unfinished, ///< the value of a field is missing; the rest of the query holds
        Hint,       ///< understood, but perhaps not as it was meant
    };

    Kind kind = Mistake;
    /** In characters from the beginning of the query. */
    int position = 0;
    int length = 0;
    /** Translated; without a full stop. */
    QString message;
};
