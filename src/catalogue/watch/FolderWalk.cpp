#include "catalogue/watch/FolderWalk.h"

#include "catalogue/watch/WatchTable.h"
#include "embroidery/EmbroideryIO.h"

#include <filesystem>
#include <QFile>

FolderWalk::FolderWalk(WatchTable &table, int room, const std::atomic<bool> &abandoned)
    : m_table(table), m_room(room), m_abandoned(abandoned)
{
}

bool FolderWalk::isDesign(const QByteArray &name)
{
    static const QStringList formats = Embroidery::EmbroideryIO::supportedFormats();
    const QString extension =
        Embroidery::EmbroideryIO::getExtensionByFilename(QFile::decodeName(name));
    return formats.contains(QStringLiteral("*.") + extension);
}

bool FolderWalk::run(const QByteArray &folder)
{
    m_next = {folder};
    while (!m_next.isEmpty() && m_room > 0 && !m_abandoned) {
        const QByteArray path = m_next.takeFirst();
        const WatchTable::Adding added = m_table.add(path);
        if (added == WatchTable::NoRoom)
            break;
        if (added != WatchTable::Added)
            continue;
        --m_room;
        look(path);
    }
    return m_hasDesigns;
}

void FolderWalk::look(const QByteArray &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entries(folder.toStdString(), error);
    const std::filesystem::directory_iterator end;
    for (; !error && entries != end; entries.increment(error)) {
        const QByteArray path = QByteArray::fromStdString(entries->path().string());
        const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
        std::error_code unknown;
        if (isHidden(name))
            continue;
        if (entries->is_directory(unknown))
            m_next.append(path);
        else
            m_hasDesigns = m_hasDesigns || isDesign(name);
    }
}
