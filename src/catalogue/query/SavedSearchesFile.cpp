#include "catalogue/query/SavedSearchesFile.h"

#include "base/Error.h"
#include "base/files/FileTools.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString Searches = QStringLiteral("searches");
const QString Name = QStringLiteral("name");
const QString QueryText = QStringLiteral("query");

QByteArray toJson(const QList<SavedSearch> &searches)
{
    QJsonArray array;
    for (const SavedSearch &search : searches)
        array.append(QJsonObject{{Name, search.name}, {QueryText, search.query}});
    return QJsonDocument(QJsonObject{{Searches, array}}).toJson();
}

} // namespace

SavedSearchesFile::SavedSearchesFile(const QString &path, QObject *parent)
    : SavedSearches(parent), m_path(path)
{
    if (QFileInfo::exists(path))
        read();
}

QString SavedSearchesFile::besideCatalogue(const QString &cataloguePath)
{
    return QFileInfo(cataloguePath).path() + QStringLiteral("/saved-searches.json");
}

void SavedSearchesFile::read()
{
    try {
        const auto document = QJsonDocument::fromJson(FileTools::readAll(m_path));
        const QJsonValue searches = document.object().value(Searches);
        m_understood = searches.isArray();
        const QJsonArray array = searches.toArray();
        for (const QJsonValue &value : array) {
            const QJsonObject search = value.toObject();
            const QString name = search.value(Name).toString();
            const QString query = search.value(QueryText).toString();
            if (!name.isEmpty())
                m_searches.append({name, query});
        }
    } catch (const Error &) {
        m_understood = false;
    }
}

void SavedSearchesFile::store(const QList<SavedSearch> &searches)
{
    if (!m_understood)
        setAside();
    FileTools::writeAll(m_path, toJson(searches));
    m_understood = true;
    m_searches = searches;
}

void SavedSearchesFile::setAside() const
{
    const QString backup = m_path + QStringLiteral(".bak");
    QFile::remove(backup);
    if (!QFile::rename(m_path, backup))
        throw Error(tr("Failed to set the damaged file '%1' aside.").arg(m_path));
}
