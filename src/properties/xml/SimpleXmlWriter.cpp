#include "properties/xml/SimpleXmlWriter.h"

#include "base/GDebug.h"
#include "properties/xml/XmlTools.h"

SimpleXmlWriter::SimpleXmlWriter(QByteArray *output, const QString &rootElement,
                                 const Attributes &attributes)
    : QXmlStreamWriter(output)
{
    setAutoFormatting(true);
    setAutoFormattingIndent(-1);
    writeStartDocument();
    startElement(rootElement, attributes);
}

SimpleXmlWriter::~SimpleXmlWriter()
{
    close();
}

void SimpleXmlWriter::startElement(const QString &name, const Attributes &attributes)
{
    writeStartElement(name);
    addTags(attributes);
}

void SimpleXmlWriter::endElement()
{
    writeEndElement();
}

void SimpleXmlWriter::addElement(const QString &name, const QString &text,
                                 const Attributes &attributes)
{
    startElement(name, attributes);
    writeCharacters(XmlTools::withoutInvalidCharacters(text));
    endElement();
}

void SimpleXmlWriter::addElement(const QString &name, const char *text)
{
    addElement(name, QString::fromUtf8(text));
}

void SimpleXmlWriter::addElement(const QString &name, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::QString:
        addElement(name, value.toString());
        return;
    case QMetaType::QVariantMap:
        startElement(name);
        addElementList(value.toMap());
        break;
    case QMetaType::UnknownType:
        startElement(name);
        writeComment(QStringLiteral("invalid data"));
        break;
    default:
        startElement(name);
        writeComment(QStringLiteral("unknown value type"));
        writeComment(XmlTools::withoutInvalidCharacters(value.toString()));
        gDebug("SimpleXmlWriter") << "can't serialize value for key" << name << "=" << value;
    }
    endElement();
}

void SimpleXmlWriter::addElementList(const QMap<QString, QVariant> &values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        addElement(it.key(), it.value());
}

void SimpleXmlWriter::addElementList(const QHash<QString, QString> &values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        addElement(it.key(), it.value());
}

void SimpleXmlWriter::addTags(const Attributes &attributes)
{
    for (const auto &attribute : attributes)
        writeAttribute(attribute.first, XmlTools::withoutInvalidCharacters(attribute.second));
}

void SimpleXmlWriter::close()
{
    if (m_closed)
        return;
    m_closed = true;
    writeEndDocument();
}
