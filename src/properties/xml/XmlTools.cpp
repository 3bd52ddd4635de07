#include "properties/xml/XmlTools.h"

#include "base/Error.h"
#include "base/qt/TextEncoding.h"
#include "properties/xml/XmlAttributeOrder.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

static void requireUtf8(const QByteArray &data)
{
    static const QRegularExpression encoding(QStringLiteral("encoding=['\"](.*?)['\"]"));
    const QString declaration = QString::fromLatin1(data.left(data.indexOf("?>") + 2));
    const QRegularExpressionMatch match = encoding.match(declaration);
    if (match.hasMatch() && match.captured(1) != QLatin1String("UTF-8"))
        throw Error(QStringLiteral("Glossmark only supports UTF-8 encoded XML files"));
}

QDomElement XmlTools::createElement(QDomDocument &document, const QXmlStreamReader &reader,
                                    XmlAttributeOrder *order)
{
    QDomElement element = document.createElement(reader.qualifiedName().toString());
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    if (order)
        order->addElement(element.tagName(), attributes);
    return element;
}

static QDomNode createCharacters(QDomDocument &document, const QXmlStreamReader &reader)
{
    const QString text = reader.text().toString();
    if (reader.isCDATA())
        return document.createCDATASection(text);
    return document.createTextNode(text);
}

/** Counts one level more; refuses too deep nesting. */
static bool enter(QXmlStreamReader &reader, int &depth)
{
    if (++depth <= XmlTools::MaximumDepth)
        return true;
    reader.raiseError(QStringLiteral("Elements are nested too deeply."));
    return false;
}

void XmlTools::readChildren(QXmlStreamReader &reader, QDomDocument &document, QDomElement parent,
                            BlankText blankText, XmlAttributeOrder *order)
{
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (!enter(reader, depth))
                return;
            parent = parent.appendChild(createElement(document, reader, order)).toElement();
            break;
        case QXmlStreamReader::EndElement:
            if (--depth < 0)
                return;
            parent = parent.parentNode().toElement();
            break;
        case QXmlStreamReader::Characters:
            if (blankText == KeepBlankText || reader.isCDATA() || !reader.isWhitespace())
                parent.appendChild(createCharacters(document, reader));
            break;
        case QXmlStreamReader::Comment:
            parent.appendChild(document.createComment(reader.text().toString()));
            break;
        default:
            break;
        }
    }
}

void XmlTools::prepareReader(QXmlStreamReader &reader)
{
    reader.setNamespaceProcessing(false);
    reader.setEntityExpansionLimit(0);
}

/** Replaces @p document by all that @p reader reads. */
static void build(QDomDocument &document, QXmlStreamReader &reader, XmlAttributeOrder *order)
{
    document = QDomDocument();
    XmlTools::prepareReader(reader);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::Comment)
            document.appendChild(document.createComment(reader.text().toString()));
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QDomElement root = XmlTools::createElement(document, reader, order);
        document.appendChild(root);
        XmlTools::readChildren(reader, document, root, XmlTools::KeepBlankText, order);
    }
}

bool XmlTools::parse(QDomDocument &document, const QByteArray &data, XmlAttributeOrder *order,
                     QString *errorText, int *errorLine)
{
    requireUtf8(data);
    QXmlStreamReader reader(data);
    build(document, reader, order);
    if (!reader.hasError())
        return true;
    if (errorText)
        *errorText = reader.errorString();
    if (errorLine)
        *errorLine = int(reader.lineNumber());
    return false;
}

bool XmlTools::isValidCharacter(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    const ushort code = c.unicode();
    return (code >= 0x20 && code < 0xfffe) || code == '\t' || code == '\n' || code == '\r';
}

QString XmlTools::withoutInvalidCharacters(const QString &text)
{
    int i = 0;
    while (i < text.size() && isValidCharacter(text, i))
        ++i;
    if (i == text.size())
        return text;
    QString valid = text.left(i);
    for (; i < text.size(); ++i) {
        if (isValidCharacter(text, i))
            valid.append(text.at(i));
    }
    return valid;
}

void XmlTools::writeText(QXmlStreamWriter &writer, const QString &text)
{
    if (writer.autoFormatting() && QStringView(text).trimmed().isEmpty())
        return;
    const QString valid = withoutInvalidCharacters(text);
    int from = 0;
    // Whoever parses a plain carriage return makes a newline of it.
    for (int i; (i = valid.indexOf(QLatin1Char('\r'), from)) >= 0; from = i + 1) {
        writer.writeCharacters(valid.mid(from, i - from));
        writer.writeEntityReference(QStringLiteral("#13"));
    }
    writer.writeCharacters(valid.mid(from));
}

static QXmlStreamAttributes validAttributes(const QXmlStreamAttributes &attributes)
{
    QXmlStreamAttributes valid;
    for (const QXmlStreamAttribute &attribute : attributes)
        valid.append(
            QXmlStreamAttribute(attribute.namespaceUri().toString(), attribute.name().toString(),
                                XmlTools::withoutInvalidCharacters(attribute.value().toString())));
    return valid;
}

static void writeChildren(QXmlStreamWriter &writer, const QDomNode &node, XmlAttributeOrder *order,
                          const QStringList &verbatimTags)
{
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling())
        XmlTools::serialize(writer, child, order, verbatimTags);
}

static void writeElement(QXmlStreamWriter &writer, const QDomElement &element,
                         XmlAttributeOrder *order, const QStringList &verbatimTags)
{
    const bool wasFormatting = writer.autoFormatting();
    writer.writeStartElement(element.tagName());
    if (verbatimTags.contains(element.tagName()))
        writer.setAutoFormatting(false);
    writer.writeAttributes(validAttributes(order->getOrderedAttributeNames(element)));
    writeChildren(writer, element, order, verbatimTags);
    writer.writeEndElement();
    writer.setAutoFormatting(wasFormatting);
}

void XmlTools::prepareWriter(QXmlStreamWriter &writer, int indent)
{
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(indent);
}

QByteArray XmlTools::serialize(const QDomDocument &document, XmlAttributeOrder *order,
                               const QStringList &verbatimTags, int indent)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    prepareWriter(writer, indent);
    serialize(writer, document, order, verbatimTags);
    return bytes;
}

void XmlTools::serialize(QXmlStreamWriter &writer, const QDomNode &node, XmlAttributeOrder *order,
                         const QStringList &verbatimTags)
{
    switch (node.nodeType()) {
    case QDomNode::DocumentNode:
        writer.writeStartDocument(QStringLiteral("1.0"));
        writer.writeCharacters(QStringLiteral("\n"));
        serialize(writer, node.toDocument().documentElement(), order, verbatimTags);
        writer.writeEndDocument();
        break;
    case QDomNode::ElementNode:
        writeElement(writer, node.toElement(), order, verbatimTags);
        break;
    case QDomNode::TextNode:
        writeText(writer, node.nodeValue());
        break;
    case QDomNode::CDATASectionNode:
        writer.writeCDATA(withoutInvalidCharacters(node.nodeValue()));
        break;
    case QDomNode::EntityReferenceNode:
        writer.writeEntityReference(node.nodeName());
        break;
    case QDomNode::CommentNode:
        writer.writeComment(withoutInvalidCharacters(node.nodeValue()));
        break;
    case QDomNode::AttributeNode:
        writer.writeAttribute(node.nodeName(), withoutInvalidCharacters(node.nodeValue()));
        break;
    default:
        break;
    }
}

QString XmlTools::xmlContent(const QDomElement &element)
{
    QByteArray bytes;
    QTextStream stream(&bytes);
    QtTextEncoding::useUtf8(stream);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling())
        child.save(stream, -1, QDomNode::EncodingFromTextStream);
    stream.flush();
    return QString::fromUtf8(bytes);
}

void XmlTools::setXmlContent(QDomDocument &document, QDomElement &element, const QString &content)
{
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    QDomDocument wrapper;
    const QByteArray xml = "<root>" + content.toUtf8() + "</root>";
    if (!parse(wrapper, xml, nullptr, nullptr, nullptr)) {
        element.appendChild(document.createTextNode(content));
        return;
    }
    for (QDomNode child = wrapper.documentElement().firstChild(); !child.isNull();
         child = child.nextSibling())
        element.appendChild(document.importNode(child, true));
}
