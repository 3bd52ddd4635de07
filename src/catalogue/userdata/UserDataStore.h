#pragma once

#include "base/files/FileStamp.h"
#include "catalogue/userdata/Remembered.h"
#include "catalogue/userdata/UserData.h"

#include <chrono>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <QByteArray>
#include <QObject>
#include <QThread>
#include <QTimer>

class UserDataDatabase;

/**
 * The store of what people write, on a thread of its own. What it is told is done in that
 * order and later; what it is asked is answered after all that was told before. What can't
 * be written for now is tried again; a damaged file is kept aside and made anew. A store
 * that can't be used at all knows nothing, and never throws.
 */
class UserDataStore : public QObject
{
    Q_OBJECT

public:
    /** Opens the file or makes it, on its own thread. */
    explicit UserDataStore(const QString &path);
    /** Waits until all that was told is on the disk, or can't get there. */
    ~UserDataStore() override;

    /** How long to wait before what could not be written is tried again. */
    void setRetryInterval(std::chrono::milliseconds interval);

    /** Edits that no catalogue file holds yet. */
    void record(const UserDataChanges &changes);

    /**
     * All edits until now are in the catalogue file with the digest @p catalogue; in none
     * when that is empty.
     */
    void settle(const std::shared_future<QByteArray> &catalogue);

    /** Brings the store into line with the catalogue file; @p all tells every design. */
    void adopt(const UserDataChanges &all, const std::shared_future<QByteArray> &catalogue);

    /** The same, unless edits were made on this very file: those are told then. */
    void adoptOther(const UserDataChanges &all, const std::shared_future<QByteArray> &catalogue);

    /** Forgets all designs that are not in the catalogue. */
    void forgetAbsentDesigns();

    /**
     * The edits that were made on this catalogue file and not saved; none if it was another,
     * or if that cannot be told for now.
     */
    std::optional<UserDataChanges> unsavedOf(const std::shared_future<QByteArray> &catalogue);

    /** The lists of tags and folders as they were last. */
    UserDataChanges lists();

    /** See UserDataDatabase::recall(). Nobody has to wait for it, unlike for what else is asked. */
    std::future<QVector<UserData>> recall(const QVector<UserData> &newcomers);

    int absentDesigns();

    /** Saved searches and values that were edited. */
    void remember(const Remembered &edits);

    /** All of them; when they can't be read now, rememberedFound() tells of them later. */
    std::optional<Remembered> remembered();

    /** Removes a file once all that was told before is on the disk. */
    void removeFile(const QString &path);

    /** Tries again at once to write what is waiting. */
    void tryAgain();

    /** Why what remember() was told is not on the disk, after another try; empty when it is. */
    QString rememberingFailure();

signals:
    void rememberedFound(const Remembered &all);

    /** What remember() was told is not on the disk; with an empty reason: it is there now. */
    void rememberingFailed(const QString &reason);

    /** Edits on the catalogue file of adoptOther() that were not saved. */
    void unsavedFound(const UserDataChanges &edits);

    /** Something was lost on the way: the store is to be told again all there is. */
    void snapshotWanted();

private:
    using Task = std::function<void(UserDataDatabase &)>;

    void tell(Task task);
    template <class Answer, class Question>
    Answer ask(Question question);
    void answer(const Task &question);
    void open();
    void work();
    bool attempt(const Task &task);
    void openDatabase();
    void tellFailure();
    void logOnce(const QString &failure);
    void noticeLoss();
    bool isReadable() const;
    bool replaceDamaged();

    QString m_path;
    QThread m_thread;
    // All below belongs to that thread.
    QObject m_worker;
    QTimer m_retryTimer;
    std::unique_ptr<UserDataDatabase> m_database;
    FileStamp m_opened;
    std::deque<Task> m_tasks;
    Remembered m_salvaged; ///< from a damaged file, and not in the new one yet
    QString m_failure;
    QString m_toldFailure;
    bool m_remembering = false; ///< something of remember() is not on the disk
    bool m_tasksDropped = false;
    bool m_suspected = false; ///< of being damaged, by whoever looked last
    bool m_replaced = false;  ///< once is enough: what is damaged anew is no accident
    bool m_unusable = false;
};
