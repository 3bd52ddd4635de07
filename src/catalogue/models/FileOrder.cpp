#include "catalogue/models/FileOrder.h"

#include "catalogue/records/LocaleAwareFunctions.h"

#include <algorithm>
#include <utility>
#include <vector>

void FileOrder::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    const QCollator collator = LocaleAwareFunctions::collator();
    const QHash<QString, QCollatorSortKey> known = std::exchange(m_keys, {});
    m_keys.reserve(files.count());
    std::vector<std::pair<QCollatorSortKey, QSharedPointer<IFile>>> keyed;
    keyed.reserve(std::size_t(files.count()));
    for (const QSharedPointer<IFile> &file : files) {
        const QString path = file->absoluteFilePath();
        const auto it = known.constFind(path);
        const QCollatorSortKey key = it != known.cend() ? *it : collator.sortKey(path);
        m_keys.insert(path, key);
        keyed.emplace_back(key, file);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
    m_files.clear();
    m_files.reserve(files.count());
    for (const auto &entry : keyed)
        m_files.append(entry.second);
}
