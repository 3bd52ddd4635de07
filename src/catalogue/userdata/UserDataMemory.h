#pragma once

#include "catalogue/records/IFile.h"
#include "catalogue/records/Project.h"

#include <chrono>
#include <future>
#include <memory>
#include <QByteArray>
#include <QList>
#include <QSharedPointer>

class IProgressAbortListener;
class RememberedData;
class UserDataStore;
class UserDataTracker;
struct UserDataChanges;

/**
 * The second memory of what people have written to their designs, beside the catalogue:
 * what was edited reaches the disk within two seconds, and designs that come back get it
 * back. Knows a catalogue file by the digest of its bytes, which is asked for on another
 * thread. Nothing here throws for what is wrong with the disk. Main thread only.
 */
class UserDataMemory
{
public:
    using Digest = std::shared_future<QByteArray>;

    /** The store's file for the catalogue in the file @p catalogue. */
    static QString pathBeside(const QString &catalogue);

    /** @param path of the store's file, which is made when it is missing */
    UserDataMemory(const QSharedPointer<Project> &project, const QString &path);
    /** Waits until all edits are on the disk. */
    ~UserDataMemory();

    UserDataMemory(const UserDataMemory &) = delete;
    UserDataMemory &operator=(const UserDataMemory &) = delete;

    /** How long edits are gathered before they are written. */
    void setInterval(std::chrono::milliseconds interval);

    /**
     * Gives the project, just loaded from the file @p catalogue, the edits that were made on
     * that very file and never saved. Returns whether it has changed, and counts as modified.
     * What the disk does not hand out now is applied as soon as it does.
     */
    bool applyUnsaved(const Digest &catalogue);

    /** Gives the project, whose catalogue was lost, the folders and tags it lacks. */
    void restoreLists();

    /** Takes over what the project holds, which is what the file @p catalogue says. */
    void adopt(const Digest &catalogue);

    /** Notes all edits until now, at once. */
    void collect();

    /**
     * The project is saved as @p catalogue, which may take its time and is empty in the end
     * if it fails; goes with collect() ahead of the save.
     */
    void settle(const Digest &catalogue);

    /** The file still is @p catalogue: what settle() was told did not come to be. */
    void settleNot(const Digest &catalogue) { m_catalogue = catalogue; }

    /**
     * Gives those @p newcomers to the project whose content, or place and content, was known
     * before what was written to them, not undoably. Returns how many got anything.
     * @param listener stays responsive meanwhile; nobody can stop it, as it would be lost
     */
    int giveBack(const QList<QSharedPointer<IFile>> &newcomers, IProgressAbortListener &listener);

    /** Number of designs that are remembered without being in the catalogue. */
    int absentDesigns();
    void forgetAbsentDesigns();

    /** What is remembered besides, and is in no catalogue. */
    RememberedData *remembered() const { return m_remembered.get(); }

private:
    bool apply(const UserDataChanges &unsaved);
    bool applyLists(const UserDataChanges &unsaved);
    void tellAgain();
    void addTags(const QStringList &tags);

    QSharedPointer<Project> m_project;
    std::unique_ptr<UserDataStore> m_store;
    std::unique_ptr<UserDataTracker> m_tracker;
    std::unique_ptr<RememberedData> m_remembered;
    Digest m_catalogue;
};
