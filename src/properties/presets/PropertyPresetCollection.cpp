#include "properties/presets/PropertyPresetCollection.h"

#include "base/Error.h"
#include "properties/core/PropertyValues.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"

#include <QObject>

PropertyPresetCollection::PropertyPresetCollection(GProject *project,
                                                   const PropertyDescriptionPreset *description)
    : PropertyListT(project, description->typeName() + QStringLiteral("_list"), false),
      m_description(description)
{
}

void PropertyPresetCollection::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

void PropertyPresetCollection::add(Property *preset, const QString &undoText)
{
    std::unique_ptr<Property> owned(preset);
    const auto *typed = dynamic_cast<PropertyPreset *>(preset);
    if (!typed)
        PropertyListErrors::throwCannotAdd(preset, this);
    const QString name = typed->name()->value();
    if (name.isEmpty())
        throw Error(tr("cannot add unnamed property preset to collection '%1'").arg(typeName()));
    if (contains(name))
        throw ErrorAlreadyExists(
            tr("property preset '%1' already exists in '%2'").arg(name, typeName()));
    const QString text =
        undoText.isEmpty() ? QStringLiteral("Add %1 %2").arg(typeName(), name) : undoText;
    PropertyListT::add(owned.release(), text);
}

void PropertyPresetCollection::remove(const QString &name, const QString &undoText)
{
    const int index = existingIndexOf(name);
    const QString text =
        undoText.isEmpty() ? QStringLiteral("Remove %1 %2").arg(typeName(), name) : undoText;
    PropertyList::remove(at(index), text);
}

QStringList PropertyPresetCollection::presetNames() const
{
    QStringList names;
    for (int i = 0; i < count(); ++i)
        names.append(at(i)->name()->value());
    return names;
}

bool PropertyPresetCollection::contains(const QString &name) const
{
    return indexOf(name) >= 0;
}

QSharedPointer<PropertyPreset> PropertyPresetCollection::preset(const QString &name) const
{
    return sharedAt(existingIndexOf(name));
}

QString PropertyPresetCollection::typeName() const
{
    return m_description->typeName();
}

int PropertyPresetCollection::indexOf(const QString &name) const
{
    return presetNames().indexOf(name);
}

int PropertyPresetCollection::existingIndexOf(const QString &name) const
{
    const int index = indexOf(name);
    if (index < 0)
        throw ErrorDoesNotExist(tr("property preset '%1' not found in '%2'").arg(name, typeName()));
    return index;
}

using Collections = PropertyListT<PropertyPresetCollection>;

/** Makes room for @p added among the collections whose @p key is the same. */
template <class Key>
static void removeEmptyCollections(Collections *list, PropertyPresetCollection *added, Key key)
{
    for (int i = 0; i < list->count();) {
        const PropertyPresetCollection *present = list->at(i);
        if (key(present) != key(added)) {
            ++i;
            continue;
        }
        if (present->count() > 0 || present == added)
            throw ErrorAlreadyExists(QObject::tr("preset collection of type '%1' already exists")
                                         .arg(added->description()->typeName()));
        list->removeWithoutUndo(i);
    }
}

static bool holds(const Collections *list, const Property *element)
{
    for (const auto &entry : list->value()) {
        if (entry.data() == element)
            return true;
    }
    return false;
}

/** Owns @p element while it isn't in @p list, so that a failure neither leaks nor frees twice. */
static std::unique_ptr<Property> ownedUnlessHeld(const Collections *list, Property *element)
{
    return std::unique_ptr<Property>(holds(list, element) ? nullptr : element);
}

template <>
void Collections::add(Property *element, const QString &undoText)
{
    std::unique_ptr<Property> owned = ownedUnlessHeld(this, element);
    auto *collection = dynamic_cast<PropertyPresetCollection *>(element);
    if (!collection)
        PropertyListErrors::throwCannotAdd(element, this);
    removeEmptyCollections(this, collection, [](const PropertyPresetCollection *candidate) {
        return candidate->description()->typeName();
    });
    PropertyList::add(owned.release(), undoText);
}

template <>
void Collections::addWithoutUndo(Property *element)
{
    std::unique_ptr<Property> owned = ownedUnlessHeld(this, element);
    auto *collection = dynamic_cast<PropertyPresetCollection *>(element);
    if (!collection)
        PropertyListErrors::throwCannotAdd(element, this);
    removeEmptyCollections(this, collection, [](const PropertyPresetCollection *candidate) {
        return candidate->propertyName();
    });
    PropertyList::addWithoutUndo(owned.release());
}
