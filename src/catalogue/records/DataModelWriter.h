#pragma once

#include "properties/PropertySerializer.h"
#include "properties/PropertyXMLWriter.h"

#include <QVersionNumber>

class Project;
class QXmlStreamWriter;

/** A base of its own, so that it is there before the writer that refers to it. */
struct DataModelSerializerHolder
{
    PropertySerializer serializer;
};

/** Writes the catalogue file. */
class DataModelWriter : private DataModelSerializerHolder, public PropertyXMLWriter
{
public:
    /** The version of the file's format. */
    static const QVersionNumber Version;

    DataModelWriter();

    /** Replaces the file whole or, throwing Error, not at all. */
    void writeToFile(Project *project, const QString &path);

private:
    // One record at a time is a document; all at once would take gigabytes.
    void writeRecords(QXmlStreamWriter &writer, const PropertyList *records);
    void write(QXmlStreamWriter &writer, Property *property);
};
