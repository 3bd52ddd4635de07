#pragma once

#include "base/DependencyRegistry.h"

/** Makes objects by role. */
class DI
{
public:
    /**
     * What is registered for @p role, when it fits T and P1; otherwise a new D.
     * @tparam D the frame's default class, built from one P1
     */
    template <typename T, typename D, typename P1>
    static QSharedPointer<T> newObject1(const QString &role, const P1 &p1)
    {
        const ConstructorBase *entry = theDependencyRegistry()->constructorBaseForName(role);
        if (const auto *constructor = dynamic_cast<const ConstructorP1<T, P1> *>(entry))
            return constructor->newObject(p1);
        if (const auto *instance = dynamic_cast<const ConcreteInstance<T> *>(entry))
            return instance->instance();
        return QSharedPointer<T>(new D(p1));
    }
};
