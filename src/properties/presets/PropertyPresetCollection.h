#pragma once

#include "properties/lists/PropertyListT.h"
#include "properties/presets/PropertyPreset.h"

#include <QCoreApplication>
#include <QStringList>

class PropertyDescriptionPreset;

/** The named presets of one type, in the order of arrival; names are unique. */
class PropertyPresetCollection : public PropertyListT<PropertyPreset>
{
    Q_DECLARE_TR_FUNCTIONS(PropertyPresetCollection)

public:
    /** @p description must outlive the collection. */
    PropertyPresetCollection(GProject *project, const PropertyDescriptionPreset *description);

    void acceptVisitor(PropertyVisitor *visitor) override;

    using PropertyListT::add;
    using PropertyListT::remove;

    /**
     * Adds a preset undoably. Throws Error when it has no name and
     * ErrorAlreadyExists when its name is taken.
     */
    void add(Property *preset, const QString &undoText) override;

    /** Removes a preset undoably. @throws ErrorDoesNotExist when there is none */
    void remove(const QString &name, const QString &undoText);

    const PropertyDescriptionPreset *description() const { return m_description; }
    QStringList presetNames() const;
    bool contains(const QString &name) const;

    /** The first preset of this name. @throws ErrorDoesNotExist when there is none */
    QSharedPointer<PropertyPreset> preset(const QString &name) const;

private:
    QString typeName() const;
    int indexOf(const QString &name) const;
    int existingIndexOf(const QString &name) const;

    const PropertyDescriptionPreset *m_description;
};

// A project holds one collection of each type: an empty one gives way to a new one
// of its type, any other makes the call throw ErrorAlreadyExists.
template <>
void PropertyListT<PropertyPresetCollection>::add(Property *element, const QString &undoText);
template <>
void PropertyListT<PropertyPresetCollection>::addWithoutUndo(Property *element);
