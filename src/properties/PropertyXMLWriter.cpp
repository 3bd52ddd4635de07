#include "properties/PropertyXMLWriter.h"

#include "properties/GProject.h"
#include "properties/PropertyByteArray.h"
#include "properties/PropertyDescriptionPreset.h"
#include "properties/PropertyDescriptionReference.h"
#include "properties/PropertyEnum.h"
#include "properties/PropertyPresetCollection.h"
#include "properties/PropertyReference.h"
#include "properties/PropertySerializer.h"
#include "properties/PropertyValues.h"

#include <QUuid>

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
    if (root)
        root->acceptVisitor(this);
    return m_document;
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

QDomElement PropertyXMLWriter::addTextElem(const QString &name, const QString &text)
{
    QDomElement element = addElem(name);
    element.appendChild(m_document.createTextNode(text));
    return element;
}

void PropertyXMLWriter::visit(PropertyBool *property)
{
    addTextElem(property->propertyName(),
                property->value() ? QStringLiteral("true") : QStringLiteral("false"));
}

void PropertyXMLWriter::visit(PropertyString *property)
{
    addTextElem(property->propertyName(), property->value());
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

void PropertyXMLWriter::visit(PropertyPointF *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("x"), property->value().x());
    element.setAttribute(QStringLiteral("y"), property->value().y());
}

void PropertyXMLWriter::visit(PropertySizeF *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("w"), property->value().width());
    element.setAttribute(QStringLiteral("h"), property->value().height());
}

void PropertyXMLWriter::visit(PropertyVector3D *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("x"), double(property->value().x()));
    element.setAttribute(QStringLiteral("y"), double(property->value().y()));
    element.setAttribute(QStringLiteral("z"), double(property->value().z()));
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
        addElem(property->propertyName());
        return;
    }
    const QString relative = m_baseDir.relativeFilePath(path);
    const bool isBase = relative.isEmpty() || relative == QLatin1String(".");
    addTextElem(property->propertyName(), isBase ? QStringLiteral("./") : relative);
}

void PropertyXMLWriter::visit(PropertyCircle *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("x"), property->value().centre.x());
    element.setAttribute(QStringLiteral("y"), property->value().centre.y());
    element.setAttribute(QStringLiteral("radius"), property->value().radius);
}

void PropertyXMLWriter::visit(PropertyPolygon *property)
{
    QDomElement element = addElem(property->propertyName());
    for (const QPointF &vertex : property->value()) {
        QDomElement point = m_document.createElement(QStringLiteral("point"));
        point.setAttribute(QStringLiteral("x"), vertex.x());
        point.setAttribute(QStringLiteral("y"), vertex.y());
        element.appendChild(point);
    }
}

void PropertyXMLWriter::visit(PropertyRect *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("x"), property->value().x());
    element.setAttribute(QStringLiteral("y"), property->value().y());
    element.setAttribute(QStringLiteral("width"), property->value().width());
    element.setAttribute(QStringLiteral("height"), property->value().height());
}

void PropertyXMLWriter::visit(PropertyByteArray *property)
{
    QString id = property->uniqueId();
    if (id.isEmpty())
        id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_serializer->saveBinaryLargeObject(id, qCompress(property->value()));
    addElem(property->propertyName()).setAttribute(QStringLiteral("datafile"), id);
}

void PropertyXMLWriter::visit(PropertyReference *property)
{
    QDomElement element = addElem(property->propertyName());
    element.setAttribute(QStringLiteral("type"), property->description()->targetType()->typeName());
    const PropertyPreset *preset = property->value().data();
    if (preset->isSharedGroup()) {
        element.setAttribute(QStringLiteral("name"), preset->name()->value());
        return;
    }
    const QDomNode parent = m_currentParent;
    m_currentParent = element;
    visitStruct(preset->data());
    m_currentParent = parent;
}

void PropertyXMLWriter::visit(PropertyStringList *property)
{
    const QDomNode parent = m_currentParent;
    m_currentParent = addElem(property->propertyName());
    for (const QString &text : property->value())
        addTextElem(QStringLiteral("string"), text);
    m_currentParent = parent;
}

void PropertyXMLWriter::visit(PropertyList *list)
{
    const QDomNode parent = m_currentParent;
    m_currentParent = addElem(list->propertyName());
    visitList(list);
    m_currentParent = parent;
}

void PropertyXMLWriter::visit(PropertyStruct *structure)
{
    const QDomNode parent = m_currentParent;
    m_currentParent = addElem(structure->propertyName());
    visitStruct(structure);
    m_currentParent = parent;
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
