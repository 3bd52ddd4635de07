#pragma once

#include "properties/PropertyXMLReader.h"

#include <QDomDocument>

class Project;
class QIODevice;

/**
 * Reads the catalogue with never more than one record of it as a document: a
 * hundred thousand of them would take gigabytes. The first pass judges the whole
 * file, before anything changes; a second one reads the records.
 */
class CatalogueXMLReader : public PropertyXMLReader
{
public:
    /** None is owned; @p file is open and can be read twice. */
    CatalogueXMLReader(Project *project, const PropertyFactory *factory, QIODevice *file);

    /** The document without its records. Throws Error when any of it is malformed. */
    QDomDocument parseWithoutRecords();

    using PropertyXMLReader::visit;

    /** Reads the records from the file instead of the document. */
    void visit(PropertyList *list) override;

private:
    void readRecords();

    Project *m_project;
    QIODevice *m_file;
};
