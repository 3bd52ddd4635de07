#include "catalogue/sync/CatalogueSave.h"

#include "catalogue/records/DataModelWriter.h"

#include <utility>

CatalogueSave::CatalogueSave(const QSharedPointer<Project> &project, const CatalogueFile &file,
                             std::function<QString()> backup, std::function<void()> whenDone)
    : m_project(project), m_file(file), m_backup(std::move(backup)),
      m_whenDone(std::move(whenDone)), m_digest(m_digestPromise.get_future().share()),
      m_thread([this] { run(); })
{
    m_project->letRead(m_readPromise.get_future().share());
}

CatalogueSave::~CatalogueSave()
{
    if (m_thread.joinable())
        m_thread.join();
}

void CatalogueSave::run()
{
    bool read = false;
    QByteArray digest;
    try {
        const QByteArray bytes = DataModelWriter().toBytes(m_project.data());
        read = true;
        m_readPromise.set_value();
        if (m_backup)
            m_backupFailure = m_backup();
        m_file.write(bytes);
        digest = m_file.lastSeenHash();
    } catch (...) {
        m_failure = std::current_exception();
        if (!read)
            m_readPromise.set_value();
    }
    m_digestPromise.set_value(digest);
    m_whenDone();
}

void CatalogueSave::finish(CatalogueFile &file)
{
    m_thread.join();
    file = m_file;
    if (m_failure)
        std::rethrow_exception(m_failure);
}
