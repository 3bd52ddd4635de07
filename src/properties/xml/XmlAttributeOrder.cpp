#include "properties/xml/XmlAttributeOrder.h"

#include <QDomElement>

void XmlAttributeOrder::clear()
{
    m_namesBySignature.clear();
}

void XmlAttributeOrder::addElement(const QString &name, const QXmlStreamAttributes &attributes)
{
    QStringList names;
    for (const QXmlStreamAttribute &attribute : attributes)
        names.append(attribute.qualifiedName().toString());
    m_namesBySignature.insert(signature(name, names), names);
}

QXmlStreamAttributes XmlAttributeOrder::getOrderedAttributeNames(const QDomElement &element) const
{
    const QDomNamedNodeMap nodes = element.attributes();
    QStringList names;
    for (int i = 0; i < nodes.count(); ++i)
        names.append(nodes.item(i).nodeName());
    names.sort();
    QXmlStreamAttributes attributes;
    if (names.isEmpty())
        return attributes;
    names = m_namesBySignature.value(signature(element.tagName(), names), names);
    for (const QString &name : std::as_const(names)) {
        const QDomAttr node = nodes.namedItem(name).toAttr();
        attributes.append(QXmlStreamAttribute(node.namespaceURI(), node.name(), node.value()));
    }
    return attributes;
}

QString XmlAttributeOrder::signature(const QString &name, QStringList attributeNames)
{
    attributeNames.sort();
    return name + attributeNames.join(QString());
}
