#include "online/PlistLoader.h"

#include "base/Error.h"
#include "base/files/FileTools.h"
#include "properties/xml/ForeignXml.h"

#include <QDomDocument>
#include <QFileInfo>

namespace {

QVariant parseValue(const QDomElement &element);

QVariantList parseArray(const QDomElement &array)
{
    QVariantList values;
    for (QDomElement child = array.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        values.append(parseValue(child));
    return values;
}

QVariantMap parseDict(const QDomElement &dict)
{
    QVariantMap values;
    QDomElement child = dict.firstChildElement();
    while (!child.isNull()) {
        if (child.tagName() != QStringLiteral("key"))
            throw Error(QStringLiteral("<key> missing in <dict>"));
        const QDomElement value = child.nextSiblingElement();
        values.insert(child.text(), parseValue(value));
        child = value.nextSiblingElement();
    }
    return values;
}

QVariant parseValue(const QDomElement &element)
{
    const QString tag = element.tagName();
    if (tag == QStringLiteral("string") || tag == QStringLiteral("data"))
        return element.text();
    if (tag == QStringLiteral("real"))
        return element.text().toDouble();
    if (tag == QStringLiteral("integer"))
        return element.text().toInt();
    if (tag == QStringLiteral("true") || tag == QStringLiteral("false"))
        return tag == QStringLiteral("true");
    if (tag == QStringLiteral("array"))
        return parseArray(element);
    if (tag == QStringLiteral("dict"))
        return parseDict(element);
    if (tag == QStringLiteral("date"))
        throw Error(QStringLiteral("<date> not yet supported"));
    throw Error(QStringLiteral("Unknown element type <%1>").arg(tag));
}

QVariant parseDom(const QDomDocument &document)
{
    const QDomElement plist = document.firstChildElement(QStringLiteral("plist"));
    if (plist.isNull())
        throw Error(QStringLiteral("No <plist> element found at the top-level of the XML file!"));
    return parseValue(plist.firstChildElement(QStringLiteral("dict")));
}

} // namespace

QVariant PlistLoader::read(const QString &fileName)
{
    if (QFileInfo(fileName).size() > ForeignXml::MaximumSize)
        throw Error(QStringLiteral("The property list %1 is too large.").arg(fileName));
    return parse(FileTools::readAll(fileName));
}

QVariant PlistLoader::parse(const QByteArray &data)
{
    QDomDocument document;
    QString message;
    if (!ForeignXml::parse(document, data, &message))
        throw Error(message);
    return parseDom(document);
}
