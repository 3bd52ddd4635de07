#include "catalogue/userdata/RememberedData.h"

#include "base/Error.h"
#include "base/files/FileTools.h"
#include "base/GDebug.h"
#include "catalogue/query/SavedSearchesJson.h"
#include "catalogue/userdata/RememberedTables.h"
#include "catalogue/userdata/UserDataStore.h"

#include <QFileInfo>

namespace {

QByteArray toBackup(const QList<SavedSearch> &searches)
{
    return searches.isEmpty() ? QByteArray() : SavedSearchesJson::write(searches);
}

} // namespace

RememberedData::RememberedData(UserDataStore *store, const QString &oldFile)
    : m_store(store), m_oldFile(oldFile)
{
    qRegisterMetaType<Remembered>();
    const auto all = store->remembered();
    if (all)
        take(*all);
    connect(&m_searches, &SavedSearches::edited, store, [store](const SavedSearchEdits &edits) {
        store->remember({edits, {}});
    });
    connect(&m_values, &RememberedValues::edited, store,
            [store](const QString &key, const QString &value) {
                store->remember({{}, {{key, value}}});
            });
    connect(store, &UserDataStore::rememberedFound, this, [this](const Remembered &found) {
        take(found);
        takeOldFile();
    });
    connect(store, &UserDataStore::snapshotWanted, this, &RememberedData::tellAgain);
    connect(store, &UserDataStore::rememberingFailed, this, &RememberedData::failed);
    if (all)
        takeOldFile();
}

void RememberedData::take(const Remembered &all)
{
    m_searches.addMissing(all.searches.written);
    m_values.addMissing(all.values);
}

void RememberedData::takeOldFile()
{
    if (!QFileInfo::exists(m_oldFile))
        return;
    try {
        const auto searches = SavedSearchesJson::read(FileTools::readAll(m_oldFile));
        if (!searches)
            throw Error(m_oldFile + QStringLiteral(" holds no saved searches"));
        m_searches.addMissing(*searches);
        m_store->removeFile(m_oldFile);
    } catch (const Error &error) {
        // It stays where it is: nobody writes it any more.
        gWarning("RememberedData") << error.toString();
    }
}

void RememberedData::tellAgain()
{
    m_store->remember({{m_searches.all(), {}}, m_values.all()});
}

QByteArray RememberedData::searchesForBackup() const
{
    return toBackup(m_searches.all());
}

QByteArray RememberedData::searchesForBackup(const QString &path)
{
    return toBackup(RememberedTables::salvage(path).searches.written);
}

void RememberedData::restoreSearches(const QByteArray &backup)
{
    if (const auto searches = SavedSearchesJson::read(backup))
        m_searches.addMissing(*searches);
}

void RememberedData::tryAgain()
{
    m_store->tryAgain();
}

QString RememberedData::failure()
{
    return m_store->rememberingFailure();
}
