#include "catalogue/records/File.h"

#include "base/Hex.h"
#include "catalogue/records/LocaleAwareFunctions.h"
#include "catalogue/records/Project.h"

File::File(Project *project) : PropertyStruct(project, QStringLiteral("file"), {})
{
    reserveProperties(11);
    m_absoluteFilePath =
        addProperty(new PropertyString(project, QStringLiteral("absolute_file_path"), QString()));
    m_fileSize = addProperty(new PropertyInt(project, QStringLiteral("file_size"), 0));
    m_modificationDate =
        addProperty(new PropertyUnsignedInt(project, QStringLiteral("modification_date"), 0));
    m_contentHash =
        addProperty(new PropertyString(project, QStringLiteral("content_hash"), QString()));
    m_name = addProperty(new PropertyString(project, QStringLiteral("name"), QString()));
    m_designSize =
        addProperty(new PropertySizeF(project, QStringLiteral("design_size"), QSizeF(-1, -1)));
    m_stitchCount = addProperty(new PropertyInt(project, QStringLiteral("stitch_count"), 0));
    m_threads = addProperty(new PropertyListT<Thread>(project, QStringLiteral("threads"), false));
    m_notes = addProperty(new PropertyString(project, QStringLiteral("notes"), QString()));
    m_tags = addProperty(new PropertyStringList(project, QStringLiteral("tags"), QStringList()));
    m_isFavorite = addProperty(new PropertyBool(project, QStringLiteral("is_favorite"), false));
}

void File::setAbsoluteFilePath(const QString &path)
{
    m_absoluteFilePath->setValueWithoutUndoAndAnnounceChange(path);
}

void File::setFileSize(int size)
{
    m_fileSize->setValueWithoutUndoAndAnnounceChange(size);
}

void File::setModificationDate(unsigned int seconds)
{
    m_modificationDate->setValueWithoutUndoAndAnnounceChange(seconds);
}

QByteArray File::contentHash() const
{
    return Hex::decoded(m_contentHash->value());
}

void File::setContentHash(const QByteArray &hash)
{
    m_contentHash->setValueWithoutUndoAndAnnounceChange(QString::fromLatin1(hash.toHex()));
}

void File::setName(const QString &name)
{
    m_name->setValueWithoutUndoAndAnnounceChange(name);
}

void File::setDesignSize(const QSizeF &size)
{
    m_designSize->setValueWithoutUndoAndAnnounceChange(size);
}

void File::setStitchCount(int count)
{
    m_stitchCount->setValueWithoutUndoAndAnnounceChange(count);
}

QList<QSharedPointer<IThread>> File::threads() const
{
    QList<QSharedPointer<IThread>> threads;
    for (int i = 0; i < m_threads->count(); ++i)
        threads.append(m_threads->sharedAt(i));
    return threads;
}

void File::setThreads(const QList<QSharedPointer<IThread>> &threads)
{
    QList<QSharedPointer<Thread>> list;
    for (const auto &thread : threads) {
        if (const auto record = qSharedPointerDynamicCast<Thread>(thread))
            list.append(record);
    }
    m_threads->replaceListWithoutUndo(list);
}

void File::setNotes(const QString &notes)
{
    m_notes->setValue(notes, QStringLiteral("change notes"));
}

void File::setTags(const QStringList &tags)
{
    m_tags->setValue(tags, QStringLiteral("update file tags"));
}

void File::addTag(const QString &tag)
{
    QStringList list = tags();
    list.append(tag);
    LocaleAwareFunctions::sort(list);
    m_tags->setValue(list, QStringLiteral("add tag"));
}

void File::removeTag(const QString &tag)
{
    QStringList list = tags();
    list.removeOne(tag);
    m_tags->setValue(list, QStringLiteral("remove tag"));
}

void File::setFavorite(bool favorite)
{
    m_isFavorite->setValue(favorite, favorite ? QStringLiteral("mark as favorite")
                                              : QStringLiteral("clear favorite flag"));
}
