#pragma once

#include "catalogue/query/SavedSearches.h"

#include <optional>
#include <QByteArray>

/** Saved searches as a JSON text, in which backups carry them. */
class SavedSearchesJson
{
public:
    static QByteArray write(const QList<SavedSearch> &searches);

    /** None when @p json is no such text. */
    static std::optional<QList<SavedSearch>> read(const QByteArray &json);
};
