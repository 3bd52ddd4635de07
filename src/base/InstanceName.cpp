#include "base/InstanceName.h"

#include <QCryptographicHash>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

QString InstanceName::toString() const
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData("SingleApplication", 17);
    for (const QString *field : {&applicationName, &organisationName, &organisationDomain,
                                 &applicationVersion, &applicationFilePath, &userName})
        hash.addData(field->toUtf8());
    return QString::fromLatin1(hash.result().toBase64().replace('/', '_'));
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
