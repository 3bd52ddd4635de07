#include "base/DependencyRegistry.h"

#include <cstdlib>

#ifdef __GNUG__
#include <cxxabi.h>
#endif

const ConstructorBase *DependencyRegistry::constructorBaseForName(const QString &role) const
{
    return m_roles.value(role, nullptr);
}

QString DependencyRegistry::demangledName(const char *name)
{
#ifdef __GNUG__
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> readable(
        abi::__cxa_demangle(name, nullptr, nullptr, &status), &std::free);
    if (status == 0 && readable)
        return QString::fromLatin1(readable.get());
#endif
    return QString::fromLatin1(name);
}

void DependencyRegistry::reset()
{
    m_roles.clear();
    m_owned.clear();
}

void DependencyRegistry::store(const QString &role,
                               std::unique_ptr<const ConstructorBase> constructor)
{
    m_roles.insert(role, constructor.get());
    m_owned.push_back(std::move(constructor));
}

DependencyRegistry *theDependencyRegistry()
{
    static DependencyRegistry registry;
    return &registry;
}
