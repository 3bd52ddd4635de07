#pragma once

#include "properties/xml/PropertySerializer.h"
#include "properties/xml/PropertyXMLWriter.h"

#include <QByteArray>
#include <QVersionNumber>

class Project;

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

    /** The bytes of the file. */
    QByteArray toBytes(Project *project);

    /** Replaces the file whole or, throwing Error, not at all. */
    void writeToFile(Project *project, const QString &path);

    using PropertyXMLWriter::visit;

    /** Gives the root its version. */
    void visit(GProject *project) override;
};
