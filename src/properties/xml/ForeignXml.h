#pragma once

#include <QByteArray>
#include <QString>

class QDomDocument;

/**
 * Reads XML that strangers wrote, within bounds on what it may cost: a few hundred
 * kilobytes can be made to hold a processor for minutes. Any thread may call it.
 */
class ForeignXml
{
public:
    /** Bytes of a document. */
    static constexpr int MaximumSize = 4 * 1024 * 1024;

    /**
     * Bytes of one tag, text or document type. Attributes are compared with each other
     * before anybody can count them, so the cost of a tag grows with its square.
     */
    static constexpr int MaximumTokenSize = 64 * 1024;

    static constexpr int MaximumAttributes = 64;

    /** Milliseconds that reading may take. */
    static constexpr int MaximumTime = 2000;

    /**
     * Replaces @p document by the elements and texts of @p data, in whatever encoding it
     * declares. Returns false, and tells why where @p errorText isn't null, for malformed
     * XML, elements nested deeper than XmlTools::MaximumDepth, text that grows by
     * entities, and whatever exceeds the bounds above.
     */
    static bool parse(QDomDocument &document, const QByteArray &data, QString *errorText = nullptr);
};
