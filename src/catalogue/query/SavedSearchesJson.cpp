#include "catalogue/query/SavedSearchesJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString Searches = QStringLiteral("searches");
const QString Name = QStringLiteral("name");
const QString QueryText = QStringLiteral("query");

} // namespace

QByteArray SavedSearchesJson::write(const QList<SavedSearch> &searches)
{
    QJsonArray array;
    for (const SavedSearch &search : searches)
        array.append(QJsonObject{{Name, search.name}, {QueryText, search.query}});
    return QJsonDocument(QJsonObject{{Searches, array}}).toJson();
}

std::optional<QList<SavedSearch>> SavedSearchesJson::read(const QByteArray &json)
{
    const QJsonValue value = QJsonDocument::fromJson(json).object().value(Searches);
    if (!value.isArray())
        return std::nullopt;
    QList<SavedSearch> searches;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array) {
        const QJsonObject search = entry.toObject();
        searches.append({search.value(Name).toString(), search.value(QueryText).toString()});
    }
    return searches;
}
