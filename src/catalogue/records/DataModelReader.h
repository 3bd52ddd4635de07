#pragma once

#include "properties/core/PropertyFactory.h"

#include <memory>
#include <QByteArray>
#include <QDomDocument>
#include <QString>

class CatalogueXMLReader;
class Project;

/** Reads the catalogue file. */
class DataModelReader : public PropertyFactory
{
public:
    DataModelReader();
    ~DataModelReader() override;

    Property *createProperty(const QString &tag, const Property *parent) const override;
    PropertyEnumElement createEnumElem(const PropertyDescriptionEnum *description,
                                       const QString &elementName) const override;

    /**
     * All bytes of a catalogue file. Throws ErrorDoesNotExist only when nothing bears that
     * name, CatalogueUnusableError when the file can't be read for now.
     */
    static QByteArray bytesOf(const QString &path);

    /** Replaces the contents of @p project; what it throws is told at IProject::load(). */
    void readFromFile(Project *project, const QString &path);

    /** The same for bytes that are read already: parse() and fill(). */
    void readFromBytes(Project *project, const QByteArray &bytes, const QString &path);

    /**
     * Reads all that is in @p bytes and leaves @p project alone, which must live as long as
     * this reader. Throws CatalogueUnusableError when a newer version of the program wrote
     * them, even if they look damaged to this one, and CatalogueDamagedError when they are
     * malformed or no catalogue.
     * @param path only named in messages
     */
    void parse(Project *project, const QByteArray &bytes, const QString &path);

    /**
     * Replaces the contents of the project by what was parsed. Throws CatalogueDamagedError
     * for a fault within the records, and the project is then filled up to it.
     */
    void fill();

    /** Replaces the contents of @p project by the whole records, and tells their number. */
    int recoverFromBytes(Project *project, const QByteArray &bytes);

    /** Throws CatalogueUnusableError for a document of a newer version. */
    static void upgradeDom(const QDomDocument &document);

private:
    Project *m_project = nullptr;
    std::unique_ptr<CatalogueXMLReader> m_reader;
};
