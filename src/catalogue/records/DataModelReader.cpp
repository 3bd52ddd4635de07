#include "catalogue/records/DataModelReader.h"

#include "base/Error.h"
#include "base/files/FileStamp.h"
#include "catalogue/records/CatalogueErrors.h"
#include "catalogue/records/CatalogueRecovery.h"
#include "catalogue/records/CatalogueXMLReader.h"
#include "catalogue/records/DataModelWriter.h"
#include "catalogue/records/Project.h"
#include "properties/changes/BulkOperation.h"

#include <QFile>
#include <QObject>

DataModelReader::DataModelReader() = default;
DataModelReader::~DataModelReader() = default;

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

QByteArray DataModelReader::bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        const QString message = QObject::tr("Failed to open file '%1'").arg(path);
        if (FileStamp::isMissing(path))
            throw ErrorDoesNotExist(message);
        throw CatalogueUnusableError(message + QStringLiteral(": ") + file.errorString());
    }
    // A failure in the middle must not look like the end of the file.
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        throw CatalogueUnusableError(
            QObject::tr("Failed to read file '%1': %2").arg(path, file.errorString()));
    return bytes;
}

void DataModelReader::readFromFile(Project *project, const QString &path)
{
    readFromBytes(project, bytesOf(path), path);
}

void DataModelReader::readFromBytes(Project *project, const QByteArray &bytes, const QString &path)
{
    parse(project, bytes, path);
    fill();
}

void DataModelReader::parse(Project *project, const QByteArray &bytes, const QString &path)
{
    m_project = project;
    m_reader = std::make_unique<CatalogueXMLReader>(project, this);
    m_reader->parse(bytes);
    if (m_reader->document().documentElement().tagName() != project->propertyName())
        throw CatalogueDamagedError(
            QObject::tr("'%1' is not a Hoopline Organizer project file").arg(path));
}

void DataModelReader::fill()
{
    m_project->clear();
    BulkOperation bulk;
    try {
        m_reader->readFromXML(m_project, m_reader->document().documentElement(),
                              QStringLiteral("/"));
    } catch (const Error &error) {
        throw CatalogueDamagedError(error.toString());
    }
    bulk.finish();
}

int DataModelReader::recoverFromBytes(Project *project, const QByteArray &bytes)
{
    m_project = project;
    return CatalogueRecovery(project, this).recover(bytes);
}

void DataModelReader::upgradeDom(const QDomDocument &document)
{
    const QString version = document.documentElement().attribute(QStringLiteral("version"));
    if (QVersionNumber::fromString(version) > DataModelWriter::Version)
        throw CatalogueUnusableError(
            QStringLiteral("This file cannot be loaded because it was created with a newer "
                           "version of Hoopline organizer"));
}
