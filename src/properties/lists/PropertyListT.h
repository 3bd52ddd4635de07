#pragma once

#include "properties/lists/ListCast.h"
#include "properties/lists/PropertyList.h"

#include <algorithm>
#include <memory>

namespace PropertyListErrors {
/** Throws ErrorTypeConflict; @p element may be null. */
[[noreturn]] void throwCannotAdd(const Property *element, const PropertyList *list);
[[noreturn]] void throwWrongElement(const Property *element, const PropertyList *list);
} // namespace PropertyListErrors

/**
 * A list whose elements are all of type T, sorted by operator< of T. Adding anything
 * else, null included, throws ErrorTypeConflict and leaves the list untouched.
 */
template <class T>
class PropertyListT : public PropertyList
{
public:
    using PropertyList::PropertyList;

    void add(Property *element, const QString &undoText) override
    {
        PropertyList::add(checked(element), undoText);
    }

    void add(T *element, const QString &undoText)
    {
        add(static_cast<Property *>(element), undoText);
    }

    void addShared(const QSharedPointer<Property> &element, const QString &undoText) override
    {
        requireType(element.data());
        PropertyList::addShared(element, undoText);
    }

    void addShared(const QSharedPointer<T> &element, const QString &undoText)
    {
        addShared(QSharedPointer<Property>(element), undoText);
    }

    void addWithoutUndo(Property *element) override
    {
        PropertyList::addWithoutUndo(checked(element));
    }

    void addSharedWithoutUndo(const QSharedPointer<Property> &element) override
    {
        requireType(element.data());
        PropertyList::addSharedWithoutUndo(element);
    }

    bool lessThan(const QSharedPointer<Property> &a,
                  const QSharedPointer<Property> &b) const override
    {
        return *typed(a.data()) < *typed(b.data());
    }

    /** Throws ErrorTypeConflict when the element is of another type. */
    T *at(int index) const { return typed(PropertyList::at(index)); }
    QSharedPointer<T> sharedAt(int index) const
    {
        auto element = qSharedPointerDynamicCast<T>(PropertyList::sharedAt(index));
        if (!element)
            PropertyListErrors::throwWrongElement(PropertyList::at(index), this);
        return element;
    }

    /** Replaces the list, sorted if this list is, and announces. */
    void replaceListWithoutUndo(QList<QSharedPointer<T>> list)
    {
        if (isSorted())
            std::stable_sort(list.begin(), list.end(),
                             [](const auto &a, const auto &b) { return *a < *b; });
        setValueWithoutUndoAndAnnounceChange(
            list_cast_helper<QSharedPointer<Property>>(list.cbegin(), list.cend()));
    }

private:
    void requireType(const Property *element) const
    {
        if (!dynamic_cast<const T *>(element))
            PropertyListErrors::throwCannotAdd(element, this);
    }

    Property *checked(Property *element) const
    {
        std::unique_ptr<Property> owned(element);
        requireType(element);
        return owned.release();
    }

    T *typed(Property *element) const
    {
        T *result = dynamic_cast<T *>(element);
        if (!result)
            PropertyListErrors::throwWrongElement(element, this);
        return result;
    }
};
