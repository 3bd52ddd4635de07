#include "online/services/PortableSystemInquiry.h"

#include <QSysInfo>

QString PortableSystemInquiry::osName() const
{
#ifdef Q_OS_MACOS
    return QStringLiteral("MacOS");
#else
    return QSysInfo::prettyProductName();
#endif
}

QString PortableSystemInquiry::osType() const
{
#ifdef Q_OS_MACOS
    return QStringLiteral("macOS");
#else
    return QSysInfo::productType();
#endif
}

QString PortableSystemInquiry::osVersion() const
{
    return QSysInfo::productVersion();
}
