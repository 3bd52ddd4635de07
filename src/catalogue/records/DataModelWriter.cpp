#include "catalogue/records/DataModelWriter.h"

#include "base/files/FileTools.h"
#include "catalogue/records/Project.h"
#include "properties/xml/XmlTools.h"

#include <QXmlStreamWriter>

const QVersionNumber DataModelWriter::Version(1, 0);

DataModelWriter::DataModelWriter() : PropertyXMLWriter(QStringLiteral("/"), &serializer) {}

QByteArray DataModelWriter::toBytes(Project *project)
{
    QByteArray bytes;
    QXmlStreamWriter stream(&bytes);
    XmlTools::prepareWriter(stream, 4);
    stream.writeStartDocument(QStringLiteral("1.0"));
    stream.writeCharacters(QStringLiteral("\n"));
    writeToStream(project, &stream);
    stream.writeEndDocument();
    return bytes;
}

void DataModelWriter::writeToFile(Project *project, const QString &path)
{
    FileTools::writeAll(path, toBytes(project));
}

void DataModelWriter::visit(GProject *project)
{
    beginElement(project->propertyName(), {{QStringLiteral("version"), Version.toString()}});
    visitStruct(project);
    endElement();
}
