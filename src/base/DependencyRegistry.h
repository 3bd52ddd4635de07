#pragma once

#include "base/ObjectConstructors.h"

#include <memory>
#include <QHash>
#include <typeinfo>
#include <vector>

/**
 * Lets a product replace a class of the frame without the frame knowing the
 * replacement: the frame asks for an object by role. Works before there is an
 * application object. Main thread only. Owns the constructor objects.
 */
class DependencyRegistry
{
public:
    virtual ~DependencyRegistry() = default;

    /** Objects of @p role become C, built from one P1 and used as a T; the last call wins. */
    template <typename T, typename C, typename P1>
    void setConstructorWith1ParameterForRole(const QString &role)
    {
        store(role,
              std::make_unique<ConcreteConstructorP1<T, C, P1>>(demangledName(typeid(C).name())));
    }

    /** Whoever asks for @p role gets @p instance. */
    template <typename T>
    void setInstanceForRole(const QString &role, const QSharedPointer<T> &instance)
    {
        store(role,
              std::make_unique<ConcreteInstance<T>>(demangledName(typeid(T).name()), instance));
    }

    /** Null when nothing is registered for @p role. */
    const ConstructorBase *constructorBaseForName(const QString &role) const;

    static QString demangledName(const char *name);

    void reset();

private:
    void store(const QString &role, std::unique_ptr<const ConstructorBase> constructor);

    QHash<QString, const ConstructorBase *> m_roles;
    // A replaced entry stays alive until reset(), since someone may still hold it.
    std::vector<std::unique_ptr<const ConstructorBase>> m_owned;
};

/** The registry of the process. */
DependencyRegistry *theDependencyRegistry();
