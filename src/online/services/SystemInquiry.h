#pragma once

#include <QString>
#include <QStringList>

/** Facts about the system that the program runs on. Nothing here uses the network. */
class SystemInquiry
{
public:
    virtual ~SystemInquiry() = default;

    /** Addresses that the system knows as the user's own; often none. */
    virtual QStringList userMailAddresses() const = 0;
    /** Name of the system, for people. */
    virtual QString osName() const = 0;
    /** Kind of the system. */
    virtual QString osType() const = 0;
    /** "unknown" when it cannot be found. */
    virtual QString osVersion() const = 0;
    /** The first two numbers of the version, "12.0"; a missing one counts as 0. */
    virtual QString osMainVersion() const;
    /** Installed memory in MB; 0 when it cannot be found. */
    virtual int systemMemoryMB() const = 0;

    /** Name and version. */
    QString osString() const;

    /** Puts @p inquiry in the place of the platform's own; null puts that back. Not owned. */
    static void overrideInstance(SystemInquiry *inquiry);
};

/** The inquiry of this platform, or what stands in its place; never null. */
SystemInquiry *theSystemInquiry();
