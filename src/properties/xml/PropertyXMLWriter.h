#pragma once

#include "properties/core/PropertyVisitor.h"

#include <QDir>
#include <QDomDocument>
#include <QMap>
#include <QString>

class Property;
class PropertySerializer;
class QXmlStreamWriter;

/**
 * Makes XML of a property tree: one element per property, named like it. Paths are
 * written relative to the base path.
 */
class PropertyXMLWriter : public PropertyVisitor
{
public:
    /** In the order in which they are written. */
    using Attributes = QMap<QString, QString>;

    /** @p serializer takes the large binary values; not owned. */
    PropertyXMLWriter(const QString &basePath, PropertySerializer *serializer);

    void setBasePath(const QString &basePath);

    /** The document of @p root; an empty one for null. */
    QDomDocument writeToXML(Property *root);

    /**
     * Writes @p root as XmlTools::serialize() would write its document, but without
     * making that, which takes far longer and gigabytes for a large catalogue.
     */
    void writeToStream(Property *root, QXmlStreamWriter *stream);

    void visit(PropertyBool *property) override;
    void visit(PropertyString *property) override;
    void visit(PropertyInt *property) override;
    void visit(PropertyUnsignedInt *property) override;
    void visit(PropertyDouble *property) override;
    void visit(PropertyPointF *property) override;
    void visit(PropertySizeF *property) override;
    void visit(PropertyVector3D *property) override;
    void visit(PropertyColor *property) override;
    void visit(PropertyEnum *property) override;
    void visit(PropertyFilename *property) override;
    void visit(PropertyCircle *property) override;
    void visit(PropertyPolygon *property) override;
    void visit(PropertyRect *property) override;
    void visit(PropertyByteArray *property) override;
    void visit(PropertyReference *property) override;
    void visit(PropertyStringList *property) override;
    void visit(PropertyList *list) override;
    void visit(PropertyStruct *structure) override;
    void visit(PropertyPresetCollection *collection) override;
    void visit(PropertyPreset *preset) override;
    void visit(GProject *project) override;

protected:
    /** Appends an element to the current one of the document; at its top if there is none. */
    QDomElement addElem(const QString &name);

    // These go to the document or to the stream.
    void addTextElem(const QString &name, const QString &text);
    void addEmptyElem(const QString &name, const Attributes &attributes = {});
    void beginElement(const QString &name, const Attributes &attributes = {});
    void endElement();

private:
    QDomDocument m_document;
    QDomNode m_currentParent;
    QXmlStreamWriter *m_stream = nullptr;
    QDir m_baseDir;
    PropertySerializer *m_serializer;
};
