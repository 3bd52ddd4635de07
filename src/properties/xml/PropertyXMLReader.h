#pragma once

#include "properties/core/PropertyVisitor.h"

#include <functional>
#include <QCoreApplication>
#include <QDir>
#include <QDomElement>
#include <QHash>
#include <QSet>
#include <QStringList>

class Property;
class PropertyFactory;

/**
 * Fills a property tree from XML, without undo. What is missing keeps its value,
 * what is unknown is ignored, numbers that don't parse become 0; only elements of
 * lists must be known to the factory. The first failure is thrown as Error and
 * leaves what was read so far.
 */
class PropertyXMLReader : public PropertyVisitor
{
    Q_DECLARE_TR_FUNCTIONS(PropertyXMLReader)

public:
    /** Neither is owned. */
    PropertyXMLReader(GProject *project, const PropertyFactory *factory);

    /** Fills @p root from @p element; relative paths lead from @p basePath. */
    void readFromXML(Property *root, const QDomElement &element, const QString &basePath);

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

    /** Reads the preset collections first, since references lead to them. */
    void visit(GProject *project) override;

protected:
    /** Runs @p read and has its failures tell that @p list couldn't be read. */
    void rethrowingForList(const PropertyList *list, const std::function<void()> &read) const;

    /** Reads the children of these names, in this order. */
    void visit(PropertyStruct *structure, const QStringList &names);

private:
    void readListElements(PropertyList *list);
    void readListElement(PropertyList *list, const QDomElement &element);
    double number(const QString &attribute) const;
    QString sharedText(const QString &name, const QString &text);

    QDomElement m_currentElement;
    GProject *m_project;
    const PropertyFactory *m_factory;
    Property *m_rootProperty = nullptr;
    QDir m_baseDir;
    QHash<QString, QSet<QString>> m_sharedTexts;
};
