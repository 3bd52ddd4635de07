#pragma once

#include "online/services/SystemInquiry.h"

/** What Qt can tell, for systems without an inquiry of their own. */
class PortableSystemInquiry : public SystemInquiry
{
public:
    QStringList userMailAddresses() const override { return {}; }
    QString osName() const override;
    QString osType() const override;
    QString osVersion() const override;
    int systemMemoryMB() const override { return 0; }
};
