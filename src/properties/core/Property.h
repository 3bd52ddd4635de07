#pragma once

#include "properties/changes/Observable.h"

#include <QString>

class GProject;
class GUndoStack;
class PropertyVisitor;

/**
 * A persistent value of a document: it knows its name, its document and how to
 * tell of its changes. Names are shared strings; give a literal where there is one.
 */
class Property : public Observable
{
public:
    /** @p project is the document that the property belongs to and must outlive it. */
    Property(GProject *project, const QString &name);

    virtual void acceptVisitor(PropertyVisitor *visitor) = 0;

    QString propertyName() const { return m_name; }
    GProject *project() const { return m_project; }

protected:
    /** To be called by whoever sets the value, first of all. */
    void beforeChange();

    GUndoStack *undoStack() const;

private:
    GProject *m_project;
    QString m_name;
};

/** Properties of unknown kind have no order. */
inline bool operator<(const Property &, const Property &)
{
    return false;
}
