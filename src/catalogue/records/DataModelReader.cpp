#include "catalogue/records/DataModelReader.h"

#include "base/Error.h"
#include "catalogue/records/CatalogueXMLReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/Project.h"
#include "properties/changes/ChangeManager.h"

#include <QFile>
#include <QObject>

Property *DataModelReader::createProperty(const QString &tag, const Property *) const
{
    if (tag == QLatin1String("file"))
        return new File(m_project);
    if (tag == QLatin1String("thread"))
        return new Thread(m_project);
    throw Error(QObject::tr("Unknown list element '%1'").arg(tag));
}

PropertyEnumElement DataModelReader::createEnumElem(const PropertyDescriptionEnum *,
                                                    const QString &) const
{
    return {};
}

void DataModelReader::readFromFile(Project *project, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ErrorDoesNotExist(QObject::tr("Failed to open file '%1'").arg(path));
    m_project = project;
    CatalogueXMLReader reader(project, this);
    const QDomDocument document = reader.parse(&file);
    if (document.documentElement().tagName() != project->propertyName())
        throw Error(QObject::tr("'%1' is not a Hoopline Organizer project file").arg(path));
    upgradeDom(document);

    project->clear();
    ChangeManager &changes = ChangeManager::instance();
    changes.startBulkOperation({});
    try {
        reader.readFromXML(project, document.documentElement(), QStringLiteral("/"));
    } catch (...) {
        changes.finishBulkOperation(true);
        throw;
    }
    changes.finishBulkOperation(true);
}

void DataModelReader::upgradeDom(const QDomDocument &document) const
{
    const QString version = document.documentElement().attribute(QStringLiteral("version"));
    if (QVersionNumber::fromString(version) > DataModelWriter::Version)
        throw Error(QStringLiteral("This file cannot be loaded because it was created with a newer "
                                   "version of Hoopline organizer"));
}
