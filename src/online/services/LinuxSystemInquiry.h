#pragma once

#include "online/services/SystemInquiry.h"

/** What Linux tells about itself: os-release, uname and sysconf. */
class LinuxSystemInquiry : public SystemInquiry
{
public:
    QStringList userMailAddresses() const override;
    QString osName() const override;
    QString osType() const override;
    /** Distribution and its version, "debian 12"; the kernel's release where there is none. */
    QString osVersion() const override;
    int systemMemoryMB() const override;
};
