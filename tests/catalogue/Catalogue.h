#pragma once

#include "catalogue/records/Project.h"

#include <QFileInfo>
#include <QSharedPointer>

/** A catalogue to test with, and short ways to say what is in it. */
class Catalogue
{
public:
    QSharedPointer<IFile> add(const QString &path, const QStringList &tags = {})
    {
        const auto file = QSharedPointer<File>::create(project.data());
        file->setAbsoluteFilePath(path);
        file->setName(QFileInfo(path).completeBaseName());
        file->setTags(tags);
        project->filesProp()->addSharedWithoutUndo(file);
        return file;
    }

    static QString paths(const QList<QSharedPointer<IFile>> &files)
    {
        QStringList paths;
        for (const auto &file : files)
            paths << file->absoluteFilePath();
        return paths.join(QLatin1Char(' '));
    }

    QSharedPointer<Project> project = QSharedPointer<Project>::create();
};

/** A catalogue of one design, with words, and a tag that none bears. */
inline QByteArray catalogueWith(const QByteArray &tag)
{
    return "<hoopline_organizer version=\"1.0\"><files><file><absolute_file_path>/a</"
           "absolute_file_path><notes>precious</notes></file></files><all_tags><string>" +
           tag + "</string></all_tags></hoopline_organizer>";
}
