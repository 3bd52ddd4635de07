#include "properties/lists/PropertyList.h"

#include "properties/core/PropertyVisitor.h"
#include "properties/undo/GUndoStack.h"

#include <algorithm>

PropertyList::PropertyList(GProject *project, const QString &name, bool sorted)
    : Property(project, name), m_sorted(sorted)
{
}

void PropertyList::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyList::add(Property *element, const QString &undoText)
{
    PropertyList::addShared(QSharedPointer<Property>(element), undoText);
}

void PropertyList::addShared(const QSharedPointer<Property> &element, const QString &undoText)
{
    Elements elements = m_elements;
    insertElement(elements, element);
    setValue(elements, undoText);
}

void PropertyList::addWithoutUndo(Property *element)
{
    PropertyList::addSharedWithoutUndo(QSharedPointer<Property>(element));
}

void PropertyList::addSharedWithoutUndo(const QSharedPointer<Property> &element)
{
    beforeChange();
    insertElement(m_elements, element);
    announceChange();
}

bool PropertyList::lessThan(const QSharedPointer<Property> &,
                            const QSharedPointer<Property> &) const
{
    return false;
}

void PropertyList::setValue(const Elements &elements, const QString &undoText)
{
    undoStack()->push(this, &PropertyList::setValueWithoutUndoAndAnnounceChange, m_elements,
                      elements, undoText, false, true);
}

void PropertyList::setValueWithoutUndoAndAnnounceChange(const Elements &elements)
{
    beforeChange();
    m_elements = elements;
    announceChange();
}

void PropertyList::remove(Property *element, const QString &undoText)
{
    Elements elements = m_elements;
    const auto holds = [element](const QSharedPointer<Property> &entry) {
        return entry.data() == element;
    };
    elements.erase(std::remove_if(elements.begin(), elements.end(), holds), elements.end());
    setValue(elements, undoText);
}

void PropertyList::remove(int index, const QString &undoText)
{
    Elements elements = m_elements;
    if (index >= 0 && index < elements.count())
        elements.removeAt(index);
    setValue(elements, undoText);
}

void PropertyList::removeWithoutUndo(int index)
{
    beforeChange();
    if (index >= 0 && index < m_elements.count())
        m_elements.removeAt(index);
    announceChange();
}

void PropertyList::clear(const QString &undoText)
{
    setValue({}, undoText);
}

void PropertyList::sort()
{
    Elements elements = m_elements;
    std::stable_sort(elements.begin(), elements.end(),
                     [this](const auto &a, const auto &b) { return lessThan(a, b); });
    setValue(elements, QStringLiteral("sort list"));
}

QSharedPointer<Property>
PropertyList::findByName(const QString &name, const std::function<QString(Property *)> &key) const
{
    const auto begin = m_elements.cbegin();
    const auto end = m_elements.cend();
    const auto found = m_sorted
                           ? std::lower_bound(begin, end, name,
                                              [&key](const QSharedPointer<Property> &element,
                                                     const QString &wanted) {
                                                  return key(element.data()) < wanted;
                                              })
                           : std::find_if(begin, end, [&](const QSharedPointer<Property> &element) {
                                 return key(element.data()) == name;
                             });
    return found != end && key(found->data()) == name ? *found : QSharedPointer<Property>();
}

void PropertyList::insertElement(Elements &list, const QSharedPointer<Property> &element) const
{
    // Files are sorted already, so that the end is the likely place while reading.
    if (!m_sorted || list.isEmpty() || !lessThan(element, list.constLast())) {
        list.append(element);
        return;
    }
    const auto position =
        std::upper_bound(list.cbegin(), list.cend(), element,
                         [this](const auto &a, const auto &b) { return lessThan(a, b); });
    list.insert(int(position - list.cbegin()), element);
}
