#include "online/services/SystemInquiry.h"

#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include "online/services/LinuxSystemInquiry.h"
using PlatformSystemInquiry = LinuxSystemInquiry;
#else
#include "online/services/PortableSystemInquiry.h"
using PlatformSystemInquiry = PortableSystemInquiry;
#endif

namespace {
SystemInquiry *replacement = nullptr;
}

QString SystemInquiry::osMainVersion() const
{
    static const QRegularExpression pattern(QStringLiteral("(\\d+)(?:\\.(\\d+))?"));
    const QRegularExpressionMatch match = pattern.match(osVersion());
    const auto part = [&match](int number) {
        const QString text = match.captured(number);
        return text.isEmpty() ? QStringLiteral("0") : text;
    };
    return part(1) + QLatin1Char('.') + part(2);
}

QString SystemInquiry::osString() const
{
    return QStringLiteral("%1 %2").arg(osName(), osVersion());
}

void SystemInquiry::overrideInstance(SystemInquiry *inquiry)
{
    replacement = inquiry;
}

SystemInquiry *theSystemInquiry()
{
    static PlatformSystemInquiry platform;
    return replacement ? replacement : &platform;
}
