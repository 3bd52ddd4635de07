#include "base/InstanceName.h"

#include <QCryptographicHash>
#include <QDir>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

QString InstanceName::toString() const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArrayLiteral("SingleApplication"));
    for (const QString *field : {&applicationName, &organisationName, &organisationDomain,
                                 &applicationVersion, &applicationFilePath, &userName})
        hash.addData(field->toUtf8());
    return QString::fromLatin1(hash.result().toBase64().replace('/', '_'));
}

QStringList InstanceName::socketPaths(const QString &name)
{
    QStringList paths{QDir::temp().absoluteFilePath(name)};
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(runtime))
        paths.append(QDir(runtime).filePath(name));
    return paths;
}

QString InstanceName::currentUser()
{
#ifdef Q_OS_UNIX
    const passwd *entry = getpwuid(geteuid());
    QString name = entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
    if (!name.isEmpty())
        return name;
#endif
    return qEnvironmentVariable("USER");
}
