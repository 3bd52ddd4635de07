#pragma once

#include "properties/core/Property.h"

#include <memory>
#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <vector>

class PropertyDescription;

/** A record of named child properties, which it owns. */
class PropertyStruct : public Property
{
    Q_DECLARE_TR_FUNCTIONS(PropertyStruct)

public:
    /** Makes a child of each description; the descriptions must outlive the struct. */
    PropertyStruct(GProject *project, const QString &name,
                   const QList<PropertyDescription *> &descriptions);

    void acceptVisitor(PropertyVisitor *visitor) override;

    /**
     * Takes ownership in any case and returns @p property. The order of the calls is
     * the order of the children. Throws ErrorAlreadyExists when the name is taken.
     */
    template <class T>
    T *addProperty(T *property)
    {
        insert(std::unique_ptr<Property>(property));
        return property;
    }

    /** The child of this name; throws ErrorDoesNotExist when there is none. */
    Property *property(const QString &name) const;

    /** The same, typed; throws ErrorTypeConflict when the child is of another type. */
    template <class T>
    T *property(const QString &name) const
    {
        T *typed = dynamic_cast<T *>(property(name));
        if (!typed)
            throwWrongType(name);
        return typed;
    }

    /** In the order of addProperty(). */
    QStringList propertyNames() const;

protected:
    /** Makes room for exactly @p count children. */
    void reserveProperties(int count) { m_children.reserve(std::size_t(count)); }

private:
    void insert(std::unique_ptr<Property> property);
    Property *find(const QString &name) const;
    [[noreturn]] static void throwWrongType(const QString &name);

    // Structs are small and there are very many of them: a scan of a dozen shared
    // names beats a hash in time, and by far in memory.
    std::vector<std::unique_ptr<Property>> m_children;
};
