#include "catalogue/query/DuplicateIndex.h"

#include "catalogue/records/IFile.h"

#include <utility>

void DuplicateIndex::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    m_files = files;
    m_hashes.clear();
    m_counted = false;
}

bool DuplicateIndex::contains(const IFile &file) const
{
    if (!m_counted)
        count();
    return m_hashes.contains(file.contentHashProp()->value());
}

void DuplicateIndex::count() const
{
    QSet<QString> seen;
    seen.reserve(m_files.count());
    for (const QSharedPointer<IFile> &file : std::as_const(m_files)) {
        const QString hash = file->contentHashProp()->value();
        if (hash.isEmpty())
            continue;
        const int before = seen.count();
        seen.insert(hash);
        if (seen.count() == before)
            m_hashes.insert(hash);
    }
    m_counted = true;
}
