#include "catalogue/userdata/UserDataMemory.h"

#include "base/GDebug.h"
#include "base/IProgressAbortListener.h"
#include "catalogue/userdata/RememberedData.h"
#include "catalogue/userdata/UserDataStore.h"
#include "catalogue/userdata/UserDataTracker.h"

#include <algorithm>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace {

constexpr std::chrono::milliseconds BetweenLooks(20);
// A millisecond's work.
constexpr int DesignsPerStep = 500;

/** Tells @p list what it lacks of @p others; the order of those that are there stays. */
QStringList united(QStringList list, const QStringList &others)
{
    QSet<QString> known(list.cbegin(), list.cend());
    for (const QString &entry : others) {
        if (!known.contains(entry)) {
            known.insert(entry);
            list.append(entry);
        }
    }
    return list;
}

void write(const UserData &data, IFile &file)
{
    file.tagsProp()->setValueWithoutUndoAndAnnounceChange(data.tags);
    file.notesProp()->setValueWithoutUndoAndAnnounceChange(data.notes);
    file.isFavoriteProp()->setValueWithoutUndoAndAnnounceChange(data.favorite);
}

bool bears(const UserData &data, const IFile &file)
{
    return file.isFavorite() == data.favorite && file.notes() == data.notes &&
           file.tags() == data.tags;
}

} // namespace

UserDataMemory::UserDataMemory(const QSharedPointer<Project> &project, const QString &path)
    : m_project(project), m_store(std::make_unique<UserDataStore>(path)),
      m_tracker(std::make_unique<UserDataTracker>(project))
{
    qRegisterMetaType<UserDataChanges>();
    m_tracker->everything();
    QObject::connect(m_tracker.get(), &UserDataTracker::found, m_store.get(),
                     &UserDataStore::record);
    QObject::connect(m_store.get(), &UserDataStore::snapshotWanted, m_tracker.get(),
                     [this] { tellAgain(); });
    QObject::connect(m_store.get(), &UserDataStore::unsavedFound, m_tracker.get(),
                     [this](const UserDataChanges &unsaved) { apply(unsaved); });
    m_remembered = std::make_unique<RememberedData>(
        m_store.get(), QFileInfo(path).path() + QStringLiteral("/saved-searches.json"));
}

QString UserDataMemory::pathBeside(const QString &catalogue)
{
    return QFileInfo(catalogue).path() + QStringLiteral("/user-data.sqlite");
}

UserDataMemory::~UserDataMemory()
{
    try {
        collect();
    } catch (const std::exception &error) {
        gWarning("UserDataMemory") << error.what();
    }
}

void UserDataMemory::setInterval(std::chrono::milliseconds interval)
{
    m_tracker->setInterval(interval);
    m_store->setRetryInterval(interval);
}

bool UserDataMemory::applyUnsaved(const Digest &catalogue)
{
    m_catalogue = catalogue;
    if (const auto unsaved = m_store->unsavedOf(catalogue))
        return apply(*unsaved);
    m_store->adoptOther(m_tracker->everything(), catalogue);
    return false;
}

bool UserDataMemory::apply(const UserDataChanges &unsaved)
{
    if (unsaved.isEmpty())
        return false;
    bool changed = applyLists(unsaved);
    QHash<QString, UserData> byPath;
    for (const UserData &data : unsaved.designs)
        byPath.insert(data.path, data);
    UserDataChanges applied;
    const auto files = m_project->files();
    for (const QSharedPointer<IFile> &file : files) {
        const auto found = byPath.find(file->absoluteFilePath());
        if (found == byPath.end())
            continue;
        found->contentHash = file->contentHashProp()->value();
        applied.designs.append(*found);
        if (!bears(*found, *file)) {
            write(*found, *file);
            changed = true;
        }
        byPath.erase(found);
    }
    // These had entered in a scan that was not saved.
    applied.gone = byPath.keys();
    m_tracker->everything();
    m_store->record(applied);
    if (changed)
        m_project->undoStack()->resetClean();
    return changed;
}

bool UserDataMemory::applyLists(const UserDataChanges &unsaved)
{
    bool changed = false;
    if (unsaved.allTags && m_project->allTags() != *unsaved.allTags) {
        m_project->setAllTags(*unsaved.allTags);
        changed = true;
    }
    if (unsaved.smartFolders && m_project->smartFolders() != *unsaved.smartFolders) {
        m_project->smartFoldersProp()->setValueWithoutUndoAndAnnounceChange(*unsaved.smartFolders);
        changed = true;
    }
    return changed;
}

void UserDataMemory::restoreLists()
{
    const UserDataChanges lists = m_store->lists();
    m_project->setAllTags(united(m_project->allTags(), lists.allTags.value_or(QStringList())));
    m_project->smartFoldersProp()->setValueWithoutUndoAndAnnounceChange(
        united(m_project->smartFolders(), lists.smartFolders.value_or(QStringList())));
}

void UserDataMemory::adopt(const Digest &catalogue)
{
    m_catalogue = catalogue;
    m_store->adopt(m_tracker->everything(), catalogue);
}

void UserDataMemory::collect()
{
    m_tracker->collectNow();
}

void UserDataMemory::settle(const Digest &catalogue)
{
    m_catalogue = catalogue;
    m_store->settle(catalogue);
}

int UserDataMemory::giveBack(const QList<QSharedPointer<IFile>> &newcomers,
                             IProgressAbortListener &listener)
{
    if (newcomers.isEmpty())
        return 0;
    QVector<UserData> asked;
    QHash<QString, QSharedPointer<IFile>> byPath;
    asked.reserve(newcomers.size());
    for (const QSharedPointer<IFile> &file : newcomers) {
        UserData newcomer;
        newcomer.path = file->absoluteFilePath();
        newcomer.contentHash = file->contentHashProp()->value();
        asked.append(newcomer);
        byPath.insert(newcomer.path, file);
        if (asked.size() % DesignsPerStep == 0)
            listener.stayResponsive();
    }
    auto answer = m_store->recall(asked);
    while (answer.wait_for(BetweenLooks) != std::future_status::ready)
        listener.stayResponsive();
    const QVector<UserData> recalled = answer.get();
    QStringList tags;
    for (int i = 0; i < recalled.size(); ++i) {
        write(recalled.at(i), *byPath.value(recalled.at(i).path));
        tags += recalled.at(i).tags;
        if (i % DesignsPerStep == 0)
            listener.stayResponsive();
    }
    addTags(tags);
    return recalled.size();
}

void UserDataMemory::addTags(const QStringList &tags)
{
    const QStringList all = m_project->allTags();
    const QStringList more = united(all, tags);
    if (more.size() != all.size())
        m_project->setAllTags(more);
}

int UserDataMemory::absentDesigns()
{
    collect();
    return m_store->absentDesigns();
}

void UserDataMemory::forgetAbsentDesigns()
{
    collect();
    m_store->forgetAbsentDesigns();
}

void UserDataMemory::tellAgain()
{
    UserDataChanges all = m_tracker->everything();
    m_store->adopt(all, m_catalogue);
    // Some of it may be in no catalogue file yet.
    all.designs.erase(std::remove_if(all.designs.begin(), all.designs.end(),
                                     [](const UserData &data) { return data.isEmpty(); }),
                      all.designs.end());
    m_store->record(all);
}
