#pragma once

#include "properties/xml/PropertyXMLReader.h"

#include <memory>
#include <QDomDocument>
#include <QString>
#include <vector>

class Project;
class QIODevice;
class QXmlStreamReader;

/**
 * Reads the catalogue with never more than one record of it as a document: a
 * hundred thousand of them would take gigabytes. Records are made aside while the
 * file is judged, so that the catalogue stays as it is until all of it is known to
 * be well-formed. They hold no references, for which the preset collections would
 * have to be read before them.
 */
class CatalogueXMLReader : public PropertyXMLReader
{
public:
    /** Neither is owned. */
    CatalogueXMLReader(Project *project, const PropertyFactory *factory);

    /**
     * Makes the records and returns the document without them. Throws Error when any
     * of the file is malformed.
     */
    QDomDocument parse(QIODevice *file);

    using PropertyXMLReader::visit;

    /** Adds the records that were made; throws Error where making them failed. */
    void visit(PropertyList *list) override;

private:
    void makeRecords(QXmlStreamReader &reader);
    void makeRecord(const QDomElement &element);
    void addRecords();

    Project *m_project;
    const PropertyFactory *m_factory;
    std::vector<std::unique_ptr<Property>> m_records;
    std::unique_ptr<QString> m_recordError;
};
