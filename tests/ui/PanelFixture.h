#pragma once

#include "catalogue/records/Project.h"

#include <QFileInfo>
#include <QSharedPointer>

/** A catalogue of designs named like \a paths, in that order. */
inline QSharedPointer<Project> projectWithFiles(const QStringList &paths)
{
    auto project = QSharedPointer<Project>::create();
    QList<QSharedPointer<IFile>> files;
    for (const QString &path : paths) {
        auto file = QSharedPointer<File>::create(project.data());
        file->setAbsoluteFilePath(path);
        file->setName(QFileInfo(path).completeBaseName());
        files.append(file);
    }
    project->setFiles(files);
    project->undoStack()->clear();
    return project;
}

/** Designs "/d/0.pes", "/d/1.pes" and so on. */
inline QSharedPointer<Project> projectOfSize(int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths += QStringLiteral("/d/%1.pes").arg(i);
    return projectWithFiles(paths);
}
