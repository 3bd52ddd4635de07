#include "faults/Profile.h"

#include "base/BuildConfig.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/Project.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

Profile::Profile(const QString &root, const QString &name)
    : m_root(root), m_home(disk() + QLatin1Char('/') + name),
      m_temporary(root + QStringLiteral("/tmp/") + name)
{
    for (const QString &folder : {designs(), QFileInfo(settingsFile()).path(), data(),
                                  m_temporary + QStringLiteral("/run")})
        QDir().mkpath(folder);
    QFile::setPermissions(m_temporary + QStringLiteral("/run"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("autoUpdatesEnabled"), false);
    settings.setValue(QStringLiteral("applicationDataPath"), QDir::cleanPath(data()));
}

QString Profile::settingsFile() const
{
    return QStringLiteral("%1/config/%2/Hoopline Organizer.conf")
        .arg(m_home, QLatin1String(BuildConfig::Organisation));
}

QString Profile::data(const QString &name) const
{
    return QStringLiteral("%1/data/%2/Hoopline Organizer/%3")
        .arg(m_home, QLatin1String(BuildConfig::Organisation), name);
}

QProcessEnvironment Profile::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_home + QStringLiteral("/data"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_home + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_temporary + QStringLiteral("/run"));
    environment.insert(QStringLiteral("TMPDIR"), m_temporary);
    return environment;
}

bool Profile::copyFrom(const Profile &other) const
{
    QDirIterator entries(other.data(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    bool copied = true;
    while (entries.hasNext()) {
        const QString from = entries.next();
        const QString to = data(QDir(other.data()).relativeFilePath(from));
        copied = QDir().mkpath(QFileInfo(to).path()) && QFile::copy(from, to) && copied;
    }
    return copied;
}

Profile::Words Profile::wordsIn(const QByteArray &catalogue)
{
    const auto project = QSharedPointer<Project>::create();
    DataModelReader().readFromBytes(project.data(), catalogue, QString());
    Words words;
    const auto files = project->files();
    for (const auto &file : files)
        words.insert(QFileInfo(file->absoluteFilePath()).fileName(),
                     QStringLiteral("%1|%2|%3")
                         .arg(file->tags().join(QLatin1Char(',')), file->notes(),
                              file->isFavorite() ? "*" : ""));
    return words;
}

QStringList Profile::files() const
{
    QStringList names;
    QDirIterator entries(m_home, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        // A backup that could not be made is made another day.
        const bool isBackup = QFileInfo(path).dir().dirName() == QLatin1String("backups");
        if (isBackup && !entries.fileInfo().isHidden())
            continue;
        names.append(QDir(m_home).relativeFilePath(path));
    }
    names.sort();
    return names;
}

QMap<QString, QByteArray> Profile::previews() const
{
    QMap<QString, QByteArray> previews;
    const QDir folder(data(QStringLiteral("previews")));
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names)
        previews.insert(name, read(folder.filePath(name)));
    return previews;
}

QByteArray Profile::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Profile::write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
