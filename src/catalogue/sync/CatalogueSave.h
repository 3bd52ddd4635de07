#pragma once

#include "catalogue/records/Project.h"
#include "catalogue/sync/CatalogueFile.h"

#include <exception>
#include <functional>
#include <future>
#include <optional>
#include <QByteArray>
#include <QSharedPointer>
#include <QString>
#include <thread>

/**
 * Writes the catalogue on a thread of its own, as it is when this is made: whoever changes
 * the project before all of it was read waits for that. To be made and ended on the
 * project's thread.
 */
class CatalogueSave
{
public:
    /**
     * Begins to write @p project as @p file.
     * @param backup what comes ahead of the write, on the other thread, and tells why it
     *        failed; null when there is nothing to be done
     * @param whenDone called on the other thread when all is over; must not throw
     * @throws std::system_error when there is no thread to be had
     */
    CatalogueSave(const QSharedPointer<Project> &project, const CatalogueFile &file,
                  std::function<QString()> backup, std::function<void()> whenDone);
    /** Waits for the end. */
    ~CatalogueSave();

    CatalogueSave(const CatalogueSave &) = delete;
    CatalogueSave &operator=(const CatalogueSave &) = delete;

    /** MD5 digest of the file when it is written; empty when it could not be. */
    std::shared_future<QByteArray> digest() const { return m_digest; }

    /**
     * Waits for the end and tells @p file what was seen of the file then.
     * @throws CatalogueUnsavedError as CatalogueFile::write()
     */
    void finish(CatalogueFile &file);

    /** Why the backup failed, empty when it did not; nothing where none was made until the end. */
    const std::optional<QString> &backupFailure() const { return m_backupFailure; }

private:
    void run();

    QSharedPointer<Project> m_project;
    CatalogueFile m_file;
    std::function<QString()> m_backup;
    std::function<void()> m_whenDone;
    std::promise<void> m_readPromise;
    std::promise<QByteArray> m_digestPromise;
    std::shared_future<QByteArray> m_digest;
    std::optional<QString> m_backupFailure;
    std::exception_ptr m_failure;
    std::thread m_thread;
};
