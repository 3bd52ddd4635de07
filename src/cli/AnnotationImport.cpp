#include "cli/AnnotationImport.h"

#include "catalogue/records/Project.h"
#include <QFileInfo>

AnnotationImport::AnnotationImport(Project &project) : m_project(project)
{
    const auto files = project.files();
    for (const File &file : files) {
        m_byPath.insert(file->absoluteFilePath(), file);
        if (!file->contentHash().isEmpty())
            m_byHash[file->contentHash()].append(file);
    }
}

void AnnotationImport::add(const Annotation &annotation)
{
    const QList<File> designs = designsOf(annotation);
    if (designs.isEmpty()) {
        m_unknown.append(annotation.path.isEmpty()
                             ? QString::fromLatin1(annotation.contentHash.toHex())
                             : annotation.path);
        return;
    }
    bool isNew = false;
    for (const File &design : designs) {
        if (!annotation.addTo(*design))
            continue;
        isNew = true;
        m_updated.insert(design->absoluteFilePath());
    }
    if (!isNew) {
        ++m_unchanged;
        return;
    }
    for (const QString &tag : annotation.tags)
        m_project.addTag(tag);
}

QStringList AnnotationImport::updated() const
{
    QStringList paths = m_updated.values();
    paths.sort();
    return paths;
}

QList<AnnotationImport::File> AnnotationImport::designsOf(const Annotation &annotation) const
{
    const QList<File> same = m_byHash.value(annotation.contentHash);
    const File atPath = m_byPath.value(annotation.path);
    if (same.isEmpty())
        return atPath ? QList<File>{atPath} : QList<File>();
    // Of copies the one that is meant, if that can be told.
    if (same.contains(atPath))
        return {atPath};
    QList<File> namesakes;
    for (const File &file : same) {
        if (QFileInfo(file->absoluteFilePath()).fileName() == QFileInfo(annotation.path).fileName())
            namesakes.append(file);
    }
    return namesakes.isEmpty() ? same : namesakes;
}
