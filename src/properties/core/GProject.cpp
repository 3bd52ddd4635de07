#include "properties/core/GProject.h"

#include "base/Error.h"
#include "properties/core/PropertyVisitor.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/undo/GUndoStack.h"

GProject::GProject(const QString &name, const QList<PropertyDescription *> &descriptions)
    : PropertyStruct(this, name, descriptions), m_undoStack(std::make_unique<GUndoStack>()),
      m_presetCollections(addProperty(new PropertyListT<PropertyPresetCollection>(
          this, QStringLiteral("preset_collections"), false)))
{
}

GProject::~GProject()
{
    waitForReader();
}

void GProject::waitForReader()
{
    if (m_read.valid())
        m_read.wait();
    m_read = {};
}

void GProject::acceptVisitor(PropertyVisitor *visitor)
{
    visitor->visit(this);
}

PropertyListT<PropertyPresetCollection> *GProject::presetCollections() const
{
    return m_presetCollections;
}

PropertyPresetCollection *GProject::presetCollectionByName(const QString &typeName) const
{
    for (int i = 0; i < m_presetCollections->count(); ++i) {
        PropertyPresetCollection *collection = m_presetCollections->at(i);
        if (collection->description()->typeName() == typeName)
            return collection;
    }
    throw ErrorDoesNotExist(tr("preset collection of type '%1' does not exist").arg(typeName));
}
