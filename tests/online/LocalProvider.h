#pragma once

#include "app/addons/GApplicationAddons.h"
#include "app/base/DI.h"
#include "online/services/GUrlProvider.h"

/** Points every web address at a server of the test's own. */
class LocalProvider : public GUrlProvider
{
public:
    using GUrlProvider::GUrlProvider;
    QString baseUrlString() const override { return base; }

    static void install()
    {
        theDependencyRegistry()
            ->setConstructorWith1ParameterForRole<GUrlProvider, LocalProvider, QString>(
                GApplicationAddons::di_UrlProvider);
    }

    inline static QString base;
};
