#include "properties/xml/PropertyXMLReader.h"

#include "base/Error.h"
#include "properties/core/GProject.h"
#include "properties/core/PropertyByteArray.h"
#include "properties/core/PropertyColor.h"
#include "properties/core/PropertyEnum.h"
#include "properties/core/PropertyFactory.h"
#include "properties/core/PropertyFilename.h"
#include "properties/core/PropertyGeometry.h"
#include "properties/core/PropertyReference.h"
#include "properties/core/PropertyValues.h"
#include "properties/presets/PropertyPresetCollection.h"
#include "properties/xml/StoredText.h"

PropertyXMLReader::PropertyXMLReader(GProject *project, const PropertyFactory *factory)
    : m_project(project), m_factory(factory)
{
}

void PropertyXMLReader::readFromXML(Property *root, const QDomElement &element,
                                    const QString &basePath)
{
    m_rootProperty = root;
    m_currentElement = element;
    m_baseDir = QDir(basePath);
    m_rootProperty->acceptVisitor(this);
}

double PropertyXMLReader::number(const QString &attribute) const
{
    return m_currentElement.attribute(attribute).toDouble();
}

void PropertyXMLReader::visit(PropertyBool *property)
{
    property->setValueWithoutUndoAndAnnounceChange(m_currentElement.text().trimmed() ==
                                                   QLatin1String("true"));
}

void PropertyXMLReader::visit(PropertyString *property)
{
    property->setValueWithoutUndoAndAnnounceChange(
        sharedText(property->propertyName(), StoredText::decode(m_currentElement.text())));
}

/**
 * A text like @p text that other properties of this name hold as well: records by the
 * hundred thousand have the same few words in them. Where all texts differ, it gives up.
 */
QString PropertyXMLReader::sharedText(const QString &name, const QString &text)
{
    constexpr int maximumLength = 64;
    constexpr int maximumCount = 500;
    if (text.length() > maximumLength)
        return text;
    QSet<QString> &known = m_sharedTexts[name];
    const auto it = known.constFind(text);
    if (it != known.cend())
        return *it;
    if (known.count() < maximumCount)
        known.insert(text);
    return text;
}

void PropertyXMLReader::visit(PropertyInt *property)
{
    property->setValueWithoutUndoAndAnnounceChange(m_currentElement.text().toInt());
}

void PropertyXMLReader::visit(PropertyUnsignedInt *property)
{
    property->setValueWithoutUndoAndAnnounceChange(m_currentElement.text().toUInt());
}

void PropertyXMLReader::visit(PropertyDouble *property)
{
    property->setValueWithoutUndoAndAnnounceChange(m_currentElement.text().toDouble());
}

void PropertyXMLReader::visit(PropertyPointF *property)
{
    property->setValueWithoutUndoAndAnnounceChange(
        QPointF(number(QStringLiteral("x")), number(QStringLiteral("y"))));
}

void PropertyXMLReader::visit(PropertySizeF *property)
{
    property->setValueWithoutUndoAndAnnounceChange(
        QSizeF(number(QStringLiteral("w")), number(QStringLiteral("h"))));
}

void PropertyXMLReader::visit(PropertyVector3D *property)
{
    const auto component = [this](const QString &name) {
        return m_currentElement.attribute(name).toFloat();
    };
    property->setValueWithoutUndoAndAnnounceChange(QVector3D(component(QStringLiteral("x")),
                                                             component(QStringLiteral("y")),
                                                             component(QStringLiteral("z"))));
}

void PropertyXMLReader::visit(PropertyColor *property)
{
    // QColor warns of every name that it can't read; a hostile file could flood the log.
    const QString name = m_currentElement.text();
    property->setValueWithoutUndoAndAnnounceChange(QColor::isValidColor(name) ? QColor(name)
                                                                              : QColor());
}

void PropertyXMLReader::visit(PropertyEnum *property)
{
    property->setValueWithoutUndoAndAnnounceChange(
        m_factory->createEnumElem(property->description(), m_currentElement.text()));
}

void PropertyXMLReader::visit(PropertyFilename *property)
{
    const QString text = StoredText::decode(m_currentElement.text());
    property->setValueWithoutUndoAndAnnounceChange(
        text.isEmpty() ? GFileName()
                       : GFileName(QDir::cleanPath(m_baseDir.absoluteFilePath(text))));
}

void PropertyXMLReader::visit(PropertyCircle *property)
{
    const QPointF centre(number(QStringLiteral("x")), number(QStringLiteral("y")));
    property->setValueWithoutUndoAndAnnounceChange({centre, number(QStringLiteral("radius"))});
}

void PropertyXMLReader::visit(PropertyPolygon *property)
{
    const QString tag = QStringLiteral("point");
    GPolygonF polygon;
    for (QDomElement point = m_currentElement.firstChildElement(tag); !point.isNull();
         point = point.nextSiblingElement(tag))
        polygon.append(QPointF(point.attribute(QStringLiteral("x")).toDouble(),
                               point.attribute(QStringLiteral("y")).toDouble()));
    property->setValueWithoutUndoAndAnnounceChange(polygon);
}

void PropertyXMLReader::visit(PropertyRect *property)
{
    property->setValueWithoutUndoAndAnnounceChange(
        QRectF(number(QStringLiteral("x")), number(QStringLiteral("y")),
               number(QStringLiteral("width")), number(QStringLiteral("height"))));
}

void PropertyXMLReader::visit(PropertyByteArray *property)
{
    const QString attribute = QStringLiteral("datafile");
    if (!m_currentElement.hasAttribute(attribute)) {
        const QByteArray base64 = m_currentElement.text().toLatin1();
        property->setValueWithoutUndoAndAnnounceChange(qUncompress(QByteArray::fromBase64(base64)));
        return;
    }
    const QString id = m_currentElement.attribute(attribute);
    property->setValueWithoutUndoAndAnnounceChange(
        qUncompress(m_factory->loadBinaryLargeObject(id)));
    property->setUniqueId(id);
}

void PropertyXMLReader::visit(PropertyReference *property)
{
    const QString type = m_currentElement.attribute(QStringLiteral("type"));
    const QString name = m_currentElement.attribute(QStringLiteral("name"));
    if (!name.isEmpty()) {
        property->setValueWithoutUndoAndAnnounceChange(
            m_project->presetCollectionByName(type)->preset(name));
        return;
    }
    const QSharedPointer<PropertyPreset> preset(m_factory->createPreset(type));
    // A reference is never null: where there are no such presets, it keeps its own.
    if (!preset)
        return;
    preset->data()->acceptVisitor(this);
    property->setValueWithoutUndoAndAnnounceChange(preset);
}

void PropertyXMLReader::visit(PropertyStringList *property)
{
    QStringList texts;
    const QDomNodeList strings = m_currentElement.elementsByTagName(QStringLiteral("string"));
    for (int i = 0; i < strings.count(); ++i)
        texts.append(StoredText::decode(strings.at(i).toElement().text()));
    property->setValueWithoutUndoAndAnnounceChange(texts);
}

void PropertyXMLReader::visit(PropertyList *list)
{
    rethrowingForList(list, [this, list] { readListElements(list); });
}

void PropertyXMLReader::rethrowingForList(const PropertyList *list,
                                          const std::function<void()> &read) const
{
    try {
        read();
    } catch (const Error &error) {
        throw Error(
            tr("Failed to read '%1' from XML!\n(%2)").arg(list->propertyName(), error.toString()));
    }
}

void PropertyXMLReader::readListElements(PropertyList *list)
{
    for (QDomElement child = m_currentElement.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        readListElement(list, child);
}

void PropertyXMLReader::readListElement(PropertyList *list, const QDomElement &element)
{
    std::unique_ptr<Property> property(m_factory->createProperty(element.tagName(), list));
    const QDomElement parent = m_currentElement;
    m_currentElement = element;
    property->acceptVisitor(this);
    m_currentElement = parent;
    list->addWithoutUndo(property.release());
}

void PropertyXMLReader::visit(PropertyStruct *structure)
{
    visit(structure, structure->propertyNames());
}

void PropertyXMLReader::visit(PropertyStruct *structure, const QStringList &names)
{
    const QDomElement parent = m_currentElement;
    for (const QString &name : names) {
        const QDomElement child = parent.firstChildElement(name);
        if (child.isNull())
            continue;
        m_currentElement = child;
        structure->property(name)->acceptVisitor(this);
        m_currentElement = parent;
    }
}

void PropertyXMLReader::visit(PropertyPresetCollection *collection)
{
    visit(static_cast<PropertyList *>(collection));
}

void PropertyXMLReader::visit(PropertyPreset *preset)
{
    visit(static_cast<PropertyStruct *>(preset));
}

void PropertyXMLReader::visit(GProject *project)
{
    QStringList names = project->propertyNames();
    const QString collections = project->presetCollections()->propertyName();
    names.removeOne(collections);
    names.prepend(collections);
    visit(project, names);
}
