#include "catalogue/records/CatalogueXMLReader.h"

#include "base/Error.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/DataModelReader.h"
#include "catalogue/records/Project.h"
#include "catalogue/records/WrittenRecords.h"
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
    if (parseAsWritten(bytes))
        return;
    const QString mistake = parseAll(bytes);
    if (!mistake.isNull())
        throw CatalogueDamagedError(mistake);
}

/** The same for a file in the program's own form; false, and nothing has happened, for others. */
bool CatalogueXMLReader::parseAsWritten(const QByteArray &bytes)
{
    WrittenRecords records(m_project);
    const auto rest = records.takeFrom(bytes);
    if (!rest || !parseAll(*rest).isNull())
        return false;
    // What looks like the list of records may be something else, a comment say.
    if (!m_records.empty() || m_placeOfRecords != records.placeOfRecords() || !m_isUtf8)
        return false;
    m_records = records.takeRecords();
    return true;
}

/** What is wrong with the XML; null when it is well-formed. */
QString CatalogueXMLReader::parseAll(const QByteArray &bytes)
{
    m_document = QDomDocument();
    m_records.clear();
    m_recordError.reset();
    m_placeOfRecords = -1;
    QXmlStreamReader reader(bytes);
    XmlTools::prepareReader(reader);
    // It is told at the start only.
    m_isUtf8 = reader.readNext() == QXmlStreamReader::StartDocument &&
               reader.documentEncoding() == QLatin1String("UTF-8");
    if (reader.readNextStartElement()) {
        QDomElement root = XmlTools::createElement(m_document, reader);
        m_document.appendChild(root);
        // First, since what follows may be well-formed in a way that is not known here.
        if (root.tagName() == m_project->propertyName())
            DataModelReader::upgradeDom(m_document);
        while (reader.readNextStartElement()) {
            const QDomElement child = XmlTools::createElement(m_document, reader);
            root.appendChild(child);
            // Only the first element of a name counts.
            if (m_placeOfRecords < 0 && child.tagName() == m_project->filesProp()->propertyName()) {
                m_placeOfRecords = reader.characterOffset();
                makeRecords(reader);
            } else {
                XmlTools::readChildren(reader, m_document, child, XmlTools::DropBlankText);
            }
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    if (!reader.hasError())
        return {};
    return QObject::tr("XML parser error: %1 (line %2)")
        .arg(reader.errorString())
        .arg(reader.lineNumber());
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
