#pragma once

#include "base/GlobalSettings.h"
#include "catalogue/records/File.h"
#include "catalogue/records/Project.h"
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

/**
 * Settings and a preview directory of the test's own. To be made before the
 * first use of the preview cache, which keeps its settings.
 */
class PreviewFixture
{
public:
    PreviewFixture()
    {
        Q_INIT_RESOURCE(hoopline_resources);
        GSettings::setIniFile(m_directory.filePath("settings.ini"));
        GlobalSettings settings;
        settings.setApplicationDataPath(m_directory.path());
        settings.setImperialUnits(false);
        QDir().mkpath(settings.previewImagePath(QByteArray()));
    }

    static QString previewPath(const QByteArray &hash)
    {
        return GlobalSettings().previewImagePath(hash);
    }

    /** Stores a preview of one colour under @p hash. */
    static void storePreview(const QByteArray &hash, const QSize &size, const QColor &color)
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        if (!image.save(previewPath(hash))) {
            qFatal("cannot store a preview");
        }
    }

    static QSharedPointer<File> makeFile(Project *project, const QString &path,
                                         const QByteArray &hash = QByteArray())
    {
        auto file = QSharedPointer<File>::create(project);
        file->setAbsoluteFilePath(path);
        file->setDesignSize(QSizeF(100, 50));
        file->setContentHash(hash);
        return file;
    }

private:
    QTemporaryDir m_directory;
};
