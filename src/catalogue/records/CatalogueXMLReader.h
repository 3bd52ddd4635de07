#pragma once

#include "properties/xml/PropertyXMLReader.h"

#include <memory>
#include <QByteArray>
#include <QDomDocument>
#include <QString>
#include <vector>

class Project;
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
     * Makes the records, and the document without them, of the bytes of a file. Throws
     * CatalogueDamagedError when any of them is malformed, and before that
     * CatalogueUnusableError when they are of a newer version.
     */
    void parse(const QByteArray &bytes);

    /** The document without its records. */
    const QDomDocument &document() const { return m_document; }

    using PropertyXMLReader::visit;

    /** Adds the records that were made; throws Error where making them failed. */
    void visit(PropertyList *list) override;

private:
    bool parseAsWritten(const QByteArray &bytes);
    QString parseAll(const QByteArray &bytes);
    void makeRecords(QXmlStreamReader &reader);
    void makeRecord(const QDomElement &element);
    void addRecords();

    Project *m_project;
    const PropertyFactory *m_factory;
    QDomDocument m_document;
    std::vector<std::unique_ptr<Property>> m_records;
    qint64 m_placeOfRecords = -1; ///< behind the start of their element, in characters
    bool m_isUtf8 = false;
    std::unique_ptr<QString> m_recordError;
};
