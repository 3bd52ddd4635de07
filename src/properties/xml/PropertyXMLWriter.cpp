#include "properties/xml/PropertyXMLWriter.h"

#include "properties/core/GProject.h"
#include "properties/core/PropertyByteArray.h"
#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyEnum.h"
#include "properties/core/PropertyFilename.h"
#include "properties/core/PropertyGeometry.h"
#include "properties/core/PropertyReference.h"
#include "properties/core/PropertyValues.h"
#include "properties/descriptions/PropertyDescriptionPreset.h"
#include "properties/descriptions/PropertyDescriptionReference.h"
#include "properties/presets/PropertyPresetCollection.h"
#include "properties/xml/PropertySerializer.h"
#include "properties/xml/StoredText.h"
#include "properties/xml/XmlTools.h"

#include <QUuid>
#include <QXmlStreamWriter>

PropertyXMLWriter::PropertyXMLWriter(const QString &basePath, PropertySerializer *serializer)
    : m_baseDir(basePath), m_serializer(serializer)
{
}

void PropertyXMLWriter::setBasePath(const QString &basePath)
{
    m_baseDir = QDir(basePath);
}

QDomDocument PropertyXMLWriter::writeToXML(Property *root)
{
    m_document = QDomDocument();
    m_currentParent = QDomNode();
    m_stream = nullptr;
    if (root)
        root->acceptVisitor(this);
    return m_document;
}

void PropertyXMLWriter::writeToStream(Property *root, QXmlStreamWriter *stream)
{
    m_stream = stream;
    root->acceptVisitor(this);
}

QDomElement PropertyXMLWriter::addElem(const QString &name)
{
    QDomElement element = m_document.createElement(name);
    if (m_currentParent.isNull())
        m_document.appendChild(element);
    else
        m_currentParent.appendChild(element);
    return element;
}

void PropertyXMLWriter::addTextElem(const QString &name, const QString &text)
{
    beginElement(name);
    if (m_stream)
        XmlTools::writeText(*m_stream, text);
    else
        m_currentParent.appendChild(m_document.createTextNode(text));
    endElement();
}

void PropertyXMLWriter::addEmptyElem(const QString &name, const Attributes &attributes)
{
    beginElement(name, attributes);
    endElement();
}

void PropertyXMLWriter::beginElement(const QString &name, const Attributes &attributes)
{
    QDomElement element;
    if (m_stream)
        m_stream->writeStartElement(name);
    else
        m_currentParent = element = addElem(name);
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        if (m_stream)
            m_stream->writeAttribute(it.key(), XmlTools::withoutInvalidCharacters(it.value()));
        else
            element.setAttribute(it.key(), it.value());
    }
}

void PropertyXMLWriter::endElement()
{
    if (m_stream)
        m_stream->writeEndElement();
    else
        m_currentParent = m_currentParent.parentNode();
}

/** As many digits as read back exactly. */
static QString exact(double value)
{
    return QString::number(value, 'g', 17);
}

void PropertyXMLWriter::visit(PropertyBool *property)
{
    addTextElem(property->propertyName(),
                property->value() ? QStringLiteral("true") : QStringLiteral("false"));
}

void PropertyXMLWriter::visit(PropertyString *property)
{
    addTextElem(property->propertyName(), StoredText::encode(property->value()));
}

void PropertyXMLWriter::visit(PropertyInt *property)
{
    addTextElem(property->propertyName(), QString::number(property->value()));
}

void PropertyXMLWriter::visit(PropertyUnsignedInt *property)
{
    addTextElem(property->propertyName(), QString::number(property->value()));
}

void PropertyXMLWriter::visit(PropertyDouble *property)
{
    addTextElem(property->propertyName(), QStringLiteral("%1").arg(property->value(), 0, 'g', -1));
}

static PropertyXMLWriter::Attributes coordinates(const QPointF &point)
{
    return {{QStringLiteral("x"), exact(point.x())}, {QStringLiteral("y"), exact(point.y())}};
}

void PropertyXMLWriter::visit(PropertyPointF *property)
{
    addEmptyElem(property->propertyName(), coordinates(property->value()));
}

void PropertyXMLWriter::visit(PropertySizeF *property)
{
    const QSizeF size = property->value();
    addEmptyElem(property->propertyName(), {{QStringLiteral("w"), exact(size.width())},
                                            {QStringLiteral("h"), exact(size.height())}});
}

void PropertyXMLWriter::visit(PropertyVector3D *property)
{
    const QVector3D vector = property->value();
    Attributes attributes = coordinates(vector.toPointF());
    attributes.insert(QStringLiteral("z"), exact(double(vector.z())));
    addEmptyElem(property->propertyName(), attributes);
}

void PropertyXMLWriter::visit(PropertyColor *property)
{
    addTextElem(property->propertyName(), property->value().name());
}

void PropertyXMLWriter::visit(PropertyEnum *property)
{
    addTextElem(property->propertyName(), property->value().elementName);
}

void PropertyXMLWriter::visit(PropertyFilename *property)
{
    const QString path = property->value().path();
    if (path.isEmpty()) {
        addEmptyElem(property->propertyName());
        return;
    }
    const QString relative = m_baseDir.relativeFilePath(path);
    const bool isBase = relative.isEmpty() || relative == QLatin1String(".");
    addTextElem(property->propertyName(),
                isBase ? QStringLiteral("./") : StoredText::encode(relative));
}

void PropertyXMLWriter::visit(PropertyCircle *property)
{
    Attributes attributes = coordinates(property->value().centre);
    attributes.insert(QStringLiteral("radius"), exact(property->value().radius));
    addEmptyElem(property->propertyName(), attributes);
}

void PropertyXMLWriter::visit(PropertyPolygon *property)
{
    beginElement(property->propertyName());
    for (const QPointF &vertex : property->value())
        addEmptyElem(QStringLiteral("point"), coordinates(vertex));
    endElement();
}

void PropertyXMLWriter::visit(PropertyRect *property)
{
    const QRectF rect = property->value();
    Attributes attributes = coordinates(rect.topLeft());
    attributes.insert(QStringLiteral("width"), exact(rect.width()));
    attributes.insert(QStringLiteral("height"), exact(rect.height()));
    addEmptyElem(property->propertyName(), attributes);
}

void PropertyXMLWriter::visit(PropertyByteArray *property)
{
    QString id = property->uniqueId();
    if (id.isEmpty())
        id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_serializer->saveBinaryLargeObject(id, qCompress(property->value()));
    addEmptyElem(property->propertyName(), {{QStringLiteral("datafile"), id}});
}

void PropertyXMLWriter::visit(PropertyReference *property)
{
    const PropertyPreset *preset = property->value().data();
    Attributes attributes{
        {QStringLiteral("type"), property->description()->targetType()->typeName()}};
    if (preset->isSharedGroup())
        attributes.insert(QStringLiteral("name"), preset->name()->value());
    beginElement(property->propertyName(), attributes);
    if (!preset->isSharedGroup())
        visitStruct(preset->data());
    endElement();
}

void PropertyXMLWriter::visit(PropertyStringList *property)
{
    beginElement(property->propertyName());
    for (const QString &text : property->value())
        addTextElem(QStringLiteral("string"), StoredText::encode(text));
    endElement();
}

void PropertyXMLWriter::visit(PropertyList *list)
{
    beginElement(list->propertyName());
    visitList(list);
    endElement();
}

void PropertyXMLWriter::visit(PropertyStruct *structure)
{
    beginElement(structure->propertyName());
    visitStruct(structure);
    endElement();
}

void PropertyXMLWriter::visit(PropertyPresetCollection *collection)
{
    visit(static_cast<PropertyList *>(collection));
}

void PropertyXMLWriter::visit(PropertyPreset *preset)
{
    visit(static_cast<PropertyStruct *>(preset));
}

void PropertyXMLWriter::visit(GProject *project)
{
    visit(static_cast<PropertyStruct *>(project));
}
