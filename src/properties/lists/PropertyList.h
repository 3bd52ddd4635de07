#pragma once

#include "properties/core/Property.h"

#include <functional>
#include <QList>
#include <QSharedPointer>

/**
 * A list of properties, sorted or in the order of arrival. Every undoable change
 * is one replacement of the whole list. Elements live as long as the list, an undo
 * step or anybody else holds them.
 *
 * The operations that take a plain pointer take ownership in any case, also when
 * they throw.
 */
class PropertyList : public Property
{
public:
    using Elements = QList<QSharedPointer<Property>>;

    PropertyList(GProject *project, const QString &name, bool sorted);

    void acceptVisitor(PropertyVisitor *visitor) override;

    /** Inserts undoably; in a sorted list behind those that compare equal. */
    virtual void add(Property *element, const QString &undoText);
    virtual void addShared(const QSharedPointer<Property> &element, const QString &undoText);

    /** The same in place and announced, but not undoable. */
    virtual void addWithoutUndo(Property *element);
    virtual void addSharedWithoutUndo(const QSharedPointer<Property> &element);

    /** The order of a sorted list; always false here. */
    virtual bool lessThan(const QSharedPointer<Property> &a,
                          const QSharedPointer<Property> &b) const;

    const Elements &value() const { return m_elements; }
    int count() const { return m_elements.count(); }
    bool isSorted() const { return m_sorted; }

    /** The element at a position from 0 to count() - 1, which isn't checked. */
    Property *at(int index) const { return m_elements.at(index).data(); }
    QSharedPointer<Property> sharedAt(int index) const { return m_elements.at(index); }

    /** Replaces the list undoably; it is taken in the order given. */
    void setValue(const Elements &elements, const QString &undoText);

    /** Replaces the list and announces, also when it is equal. */
    void setValueWithoutUndoAndAnnounceChange(const Elements &elements);

    /** Removes every entry that holds @p element, undoably. */
    void remove(Property *element, const QString &undoText);

    /** Ignores an index that is out of range. */
    void remove(int index, const QString &undoText);

    /** Ignores an index that is out of range, but announces all the same. */
    void removeWithoutUndo(int index);

    void clear(const QString &undoText);

    /** Sorts undoably by lessThan(). */
    void sort();

    /**
     * The first element whose @p key is @p name, or null. A sorted list is searched
     * by halves, for which the key must order as the list does.
     */
    QSharedPointer<Property> findByName(const QString &name,
                                        const std::function<QString(Property *)> &key) const;

private:
    void insertElement(Elements &list, const QSharedPointer<Property> &element) const;

    Elements m_elements;
    bool m_sorted;
};
