#include "catalogue/records/CatalogueXMLReader.h"

#include "base/Error.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/Project.h"
#include "properties/core/PropertyFactory.h"
#include "properties/xml/XmlTools.h"

#include <QObject>
#include <QXmlStreamReader>

CatalogueXMLReader::CatalogueXMLReader(Project *project, const PropertyFactory *factory)
    : PropertyXMLReader(project, factory), m_project(project), m_factory(factory)
{
}

void CatalogueXMLReader::parse(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    XmlTools::prepareReader(reader);
    if (reader.readNextStartElement()) {
        QDomElement root = XmlTools::createElement(m_document, reader);
        m_document.appendChild(root);
        // First, since what follows may be well-formed in a way that is not known here.
        if (root.tagName() == m_project->propertyName())
            DataModelReader::upgradeDom(m_document);
        bool hasRecords = false;
        while (reader.readNextStartElement()) {
            const QDomElement child = XmlTools::createElement(m_document, reader);
            root.appendChild(child);
            // Only the first element of a name counts.
            if (!hasRecords && child.tagName() == m_project->filesProp()->propertyName()) {
                hasRecords = true;
                makeRecords(reader);
            } else {
                XmlTools::readChildren(reader, m_document, child, XmlTools::DropBlankText);
            }
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        throw CatalogueDamagedError(QObject::tr("XML parser error: %1 (line %2)")
                                        .arg(reader.errorString())
                                        .arg(reader.lineNumber()));
}

void CatalogueXMLReader::makeRecords(QXmlStreamReader &reader)
{
    while (reader.readNextStartElement()) {
        QDomDocument document;
        const QDomElement element = XmlTools::createElement(document, reader);
        document.appendChild(element);
        XmlTools::readChildren(reader, document, element, XmlTools::DropBlankText);
        if (!m_recordError && !reader.hasError())
            makeRecord(element);
    }
}

void CatalogueXMLReader::makeRecord(const QDomElement &element)
{
    try {
        std::unique_ptr<Property> record(
            m_factory->createProperty(element.tagName(), m_project->filesProp()));
        readFromXML(record.get(), element, QStringLiteral("/"));
        m_records.push_back(std::move(record));
    } catch (const Error &error) {
        // Told where the records take their place in the catalogue.
        m_recordError = std::make_unique<QString>(error.toString());
    }
}

void CatalogueXMLReader::visit(PropertyList *list)
{
    if (list == m_project->filesProp())
        rethrowingForList(list, [this] { addRecords(); });
    else
        PropertyXMLReader::visit(list);
}

void CatalogueXMLReader::addRecords()
{
    for (auto &record : m_records)
        m_project->filesProp()->addWithoutUndo(record.release());
    if (m_recordError)
        throw Error(*m_recordError);
}
