#include "base/files/PrivateAccess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

void PrivateAccess::takeFromOthers(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info;
    if (stat(name.constData(), &info) != 0 || (info.st_mode & (S_IRWXG | S_IRWXO)) == 0)
        return;
    (void)!chmod(name.constData(), info.st_mode & S_IRWXU);
}

bool PrivateAccess::makeFolder(const QString &path)
{
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QDir().mkpath(QFileInfo(folder).path());
    return mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0 || QDir(folder).exists();
}
