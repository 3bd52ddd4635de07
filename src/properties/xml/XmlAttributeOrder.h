#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QXmlStreamAttributes>

class QDomElement;

/**
 * The order in which a file had the attributes of its elements, for each kind of
 * element: its name together with the names of its attributes.
 */
class XmlAttributeOrder
{
public:
    void clear();

    /** Remembers the order of @p attributes for elements like this one. */
    void addElement(const QString &name, const QXmlStreamAttributes &attributes);

    /** The attributes in the order remembered, or else by name, case-sensitively. */
    QXmlStreamAttributes getOrderedAttributeNames(const QDomElement &element) const;

private:
    static QString signature(const QString &name, QStringList attributeNames);

    QHash<QString, QStringList> m_namesBySignature;
};
