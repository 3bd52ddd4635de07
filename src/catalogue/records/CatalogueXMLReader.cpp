#include "catalogue/records/CatalogueXMLReader.h"

#include "app/base/Error.h"
#include "catalogue/records/Project.h"
#include "properties/XmlTools.h"

#include <QIODevice>
#include <QObject>
#include <QXmlStreamReader>

static void throwIfMalformed(const QXmlStreamReader &reader)
{
    if (reader.hasError())
        throw Error(QObject::tr("XML parser error: %1 (line %2)")
                        .arg(reader.errorString())
                        .arg(reader.lineNumber()));
}

CatalogueXMLReader::CatalogueXMLReader(Project *project, const PropertyFactory *factory,
                                       QIODevice *file)
    : PropertyXMLReader(project, factory), m_project(project), m_file(file)
{
}

QDomDocument CatalogueXMLReader::parseWithoutRecords()
{
    QDomDocument document;
    QXmlStreamReader reader(m_file);
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement()) {
        QDomElement root = XmlTools::createElement(document, reader);
        document.appendChild(root);
        bool hasRecords = false;
        while (reader.readNextStartElement()) {
            const QDomElement child = XmlTools::createElement(document, reader);
            root.appendChild(child);
            // Only the first element of a name counts.
            if (!hasRecords && child.tagName() == m_project->filesProp()->propertyName()) {
                hasRecords = true;
                XmlTools::skipChildren(reader);
            } else {
                XmlTools::readChildren(reader, document, child, XmlTools::DropBlankText);
            }
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    throwIfMalformed(reader);
    return document;
}

void CatalogueXMLReader::visit(PropertyList *list)
{
    if (list != m_project->filesProp()) {
        PropertyXMLReader::visit(list);
        return;
    }
    rethrowingForList(list, [this] { readRecords(); });
}

void CatalogueXMLReader::readRecords()
{
    m_file->seek(0);
    QXmlStreamReader reader(m_file);
    reader.setNamespaceProcessing(false);
    reader.readNextStartElement();
    const QString tag = m_project->filesProp()->propertyName();
    while (reader.readNextStartElement() && reader.qualifiedName() != tag)
        XmlTools::skipChildren(reader);
    while (reader.readNextStartElement()) {
        QDomDocument document;
        const QDomElement element = XmlTools::createElement(document, reader);
        document.appendChild(element);
        XmlTools::readChildren(reader, document, element, XmlTools::DropBlankText);
        throwIfMalformed(reader);
        readListElement(m_project->filesProp(), element);
    }
    throwIfMalformed(reader);
}
