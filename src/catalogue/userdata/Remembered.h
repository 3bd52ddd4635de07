#pragma once

#include "catalogue/query/SavedSearches.h"

#include <QMap>
#include <QMetaType>
#include <QString>

/** What is remembered and is in no catalogue: what has changed of it, or all there is. */
struct Remembered
{
    SavedSearchEdits searches;
    QMap<QString, QString> values;

    bool isEmpty() const { return searches.isEmpty() && values.isEmpty(); }
};

// The store tells of it on its own thread.
Q_DECLARE_METATYPE(Remembered)
