#include "catalogue/records/DataModelWriter.h"

#include "catalogue/disk/FileTools.h"
#include "catalogue/records/Project.h"
#include "properties/XmlAttributeOrder.h"
#include "properties/XmlTools.h"

const QVersionNumber DataModelWriter::Version(1, 0);

DataModelWriter::DataModelWriter() : PropertyXMLWriter(QStringLiteral("/"), &serializer) {}

void DataModelWriter::writeToFile(Project *project, const QString &path)
{
    const QDomDocument document = writeToXML(project);
    document.documentElement().setAttribute(QStringLiteral("version"), Version.toString());
    XmlAttributeOrder order;
    FileTools::writeAll(path, XmlTools::serialize(document, &order, {}, 4));
}
