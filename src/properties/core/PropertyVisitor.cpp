#include "properties/core/PropertyVisitor.h"

#include "properties/core/GProject.h"
#include "properties/presets/PropertyPresetCollection.h"

void PropertyVisitor::visit(PropertyList *list)
{
    visitList(list);
}

void PropertyVisitor::visit(PropertyStruct *structure)
{
    visitStruct(structure);
}

void PropertyVisitor::visit(PropertyPresetCollection *collection)
{
    visitList(collection);
}

void PropertyVisitor::visit(PropertyPreset *preset)
{
    visitStruct(preset);
}

void PropertyVisitor::visit(GProject *project)
{
    visitStruct(project);
}

void PropertyVisitor::visitStruct(PropertyStruct *structure)
{
    const QStringList names = structure->propertyNames();
    for (const QString &name : names)
        structure->property(name)->acceptVisitor(this);
}

void PropertyVisitor::visitList(PropertyList *list)
{
    const int count = list->count();
    for (int i = 0; i < count; ++i)
        list->at(i)->acceptVisitor(this);
}
