#include "catalogue/records/DataModelWriter.h"

#include "catalogue/disk/FileTools.h"
#include "catalogue/records/Project.h"
#include "properties/XmlAttributeOrder.h"
#include "properties/XmlTools.h"

#include <QXmlStreamWriter>

const QVersionNumber DataModelWriter::Version(1, 0);

DataModelWriter::DataModelWriter() : PropertyXMLWriter(QStringLiteral("/"), &serializer) {}

void DataModelWriter::writeToFile(Project *project, const QString &path)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    XmlTools::prepareWriter(writer, 4);
    writer.writeStartDocument(QStringLiteral("1.0"));
    writer.writeCharacters(QStringLiteral("\n"));
    writer.writeStartElement(project->propertyName());
    writer.writeAttribute(QStringLiteral("version"), Version.toString());
    const QStringList names = project->propertyNames();
    for (const QString &name : names) {
        if (name == project->filesProp()->propertyName())
            writeRecords(writer, project->filesProp());
        else
            write(writer, project->property(name));
    }
    writer.writeEndDocument();
    FileTools::writeAll(path, bytes);
}

void DataModelWriter::writeRecords(QXmlStreamWriter &writer, const PropertyList *records)
{
    writer.writeStartElement(records->propertyName());
    for (const auto &record : records->value())
        write(writer, record.data());
    writer.writeEndElement();
}

void DataModelWriter::write(QXmlStreamWriter &writer, Property *property)
{
    XmlAttributeOrder order;
    XmlTools::serialize(writer, writeToXML(property).documentElement(), &order, {});
}
