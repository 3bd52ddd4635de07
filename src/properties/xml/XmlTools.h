#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QDomDocument;
class QDomElement;
class QDomNode;
class QXmlStreamReader;
class QXmlStreamWriter;
class XmlAttributeOrder;

/** The step between XML documents and bytes. */
class XmlTools
{
public:
    /** Elements nested deeper than this are refused: whoever walks them recurses. */
    static constexpr int MaximumDepth = 256;

    /**
     * Replaces @p document by what @p data holds. Returns false for malformed XML and
     * tells the error and its line, where the pointers aren't null. @p order, which
     * may be null, learns the order of the attributes.
     * @throws Error when an encoding other than UTF-8 is declared
     */
    static bool parse(QDomDocument &document, const QByteArray &data, XmlAttributeOrder *order,
                      QString *errorText, int *errorLine);

    /**
     * The document as UTF-8, indented by @p indent blanks. Texts of blanks only are
     * dropped, but not in elements named in @p verbatimTags. Characters that XML can't
     * hold are dropped.
     */
    static QByteArray serialize(const QDomDocument &document, XmlAttributeOrder *order,
                                const QStringList &verbatimTags, int indent);
    static void serialize(QXmlStreamWriter &writer, const QDomNode &node, XmlAttributeOrder *order,
                          const QStringList &verbatimTags);

    /**
     * Writes @p text so that it reads back as it is, but for the characters that XML
     * can't hold. Nothing for blanks only while @p writer formats.
     */
    static void writeText(QXmlStreamWriter &writer, const QString &text);

    /** The children of @p element as XML text. */
    static QString xmlContent(const QDomElement &element);

    /** Replaces the children by @p content: by its markup if well-formed, else as text. */
    static void setXmlContent(QDomDocument &document, QDomElement &element, const QString &content);

    /** Whether XML can hold what stands at @p i of @p text, with its other half if it has one. */
    static bool isValidCharacter(const QString &text, int i);

    /** @p text without the characters that XML can't hold. */
    static QString withoutInvalidCharacters(const QString &text);

    /** Sets @p reader up as parse() has it; an entity that makes text grow is an error. */
    static void prepareReader(QXmlStreamReader &reader);

    /** Sets @p writer up as serialize() has it. */
    static void prepareWriter(QXmlStreamWriter &writer, int indent);

    enum BlankText { KeepBlankText, DropBlankText };

    /** The element that @p reader stands at the start of, without its children. */
    static QDomElement createElement(QDomDocument &document, const QXmlStreamReader &reader,
                                     XmlAttributeOrder *order = nullptr);

    /**
     * Builds the children of @p parent, at whose start @p reader stands, and leaves it
     * at the end. Errors, too deep nesting among them, stay in @p reader.
     */
    static void readChildren(QXmlStreamReader &reader, QDomDocument &document, QDomElement parent,
                             BlankText blankText, XmlAttributeOrder *order = nullptr);
};
