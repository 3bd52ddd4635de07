#pragma once

#include "catalogue/records/Project.h"

#include <QFile>
#include <QSharedPointer>

/** A catalogue of made-up designs in folders of a hundred, with five threads each. */
inline void fillCatalogue(Project *project, int count)
{
    QList<QSharedPointer<IFile>> files;
    files.reserve(count);
    for (int i = 0; i < count; ++i) {
        const auto file = QSharedPointer<File>::create(project);
        const QString name = QStringLiteral("Flower %1").arg(i * 7919LL % count);
        const char *suffix = i % 3 == 0 ? "dst" : "pes";
        file->setAbsoluteFilePath(QStringLiteral("/home/user/Designs/Set %1/%2.%3")
                                      .arg(i / 100)
                                      .arg(name, QLatin1String(suffix)));
        file->setFileSize(20000 + i);
        file->setModificationDate(1609459200U + unsigned(i));
        // One in twenty is there twice.
        const int content = i % 20 == 19 ? i - 1 : i;
        file->setContentHash(QByteArray(8, char(content)) +
                             QByteArray::number(content).rightJustified(8, '0'));
        file->setName(name);
        file->setDesignSize({50.0 + i % 150, 40.0 + i % 130});
        file->setStitchCount(1000 + i);
        QList<QSharedPointer<IThread>> threads;
        for (int k = 0; k < 5; ++k) {
            const auto thread = QSharedPointer<Thread>::create(project);
            thread->setColor(QColor::fromHsv(k * 60, 200, 200));
            thread->setColorName(QStringLiteral("Colour %1").arg(k));
            thread->setChart(QStringLiteral("Chart"));
            threads.append(thread);
        }
        file->setThreads(threads);
        if (i % 10 == 0)
            file->tagsProp()->setValueWithoutUndoAndAnnounceChange({QStringLiteral("flowers")});
        files.append(file);
    }
    project->setFiles(files);
    project->setSmartFolders({QStringLiteral("/home/user/Designs")}, {});
}

/** A line of /proc/self/status, in kilobytes; 0 where there is no such file. */
inline qint64 memoryInKilobytes(const QByteArray &field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(field + ':'))
            return line.mid(field.size() + 1).simplified().split(' ').first().toLongLong();
    }
    return 0;
}
