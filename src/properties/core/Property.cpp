#include "properties/core/Property.h"

#include "properties/core/GProject.h"

Property::Property(GProject *project, const QString &name) : m_project(project), m_name(name) {}

void Property::beforeChange()
{
    m_project->beforeChange();
}

GUndoStack *Property::undoStack() const
{
    return m_project->undoStack();
}
