#pragma once

#include "base/GlobalSettings.h"
#include "base/GSettings.h"
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/** A throw-away profile and, beside it, a folder for designs; new settings while it lives. */
class CatalogueFolder
{
public:
    CatalogueFolder()
    {
        GSettings::setIniFile(m_root.filePath("settings.ini"));
        GlobalSettings().setApplicationDataPath(m_root.filePath("data"));
        QDir(m_root.path()).mkpath("designs");
    }
    ~CatalogueFolder() { GSettings::setIniFile(QString()); }

    QString designs() const { return m_root.filePath("designs"); }
    QString design(const QString &name) const { return designs() + QLatin1Char('/') + name; }
    QString dataFile(const QString &name) const { return m_root.filePath("data/") + name; }
    QString catalogueFile() const { return dataFile("hoopline-organizer.xml"); }

    /** Sets the modification time, to the second. */
    static bool setDate(const QString &path, const QDateTime &date)
    {
        QFile file(path);
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(date, QFileDevice::FileModificationTime);
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static bool write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

private:
    QTemporaryDir m_root;
};
