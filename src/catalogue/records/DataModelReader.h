#pragma once

#include "properties/core/PropertyFactory.h"

#include <QDomDocument>

class Project;

/** Reads the catalogue file. */
class DataModelReader : public PropertyFactory
{
public:
    Property *createProperty(const QString &tag, const Property *parent) const override;
    PropertyEnumElement createEnumElem(const PropertyDescriptionEnum *description,
                                       const QString &elementName) const override;

    /** Replaces the contents of @p project; what it throws is told at IProject::load(). */
    void readFromFile(Project *project, const QString &path);

private:
    void upgradeDom(const QDomDocument &document) const;

    Project *m_project = nullptr;
};
