#include "properties/xml/ForeignXml.h"

#include "properties/xml/XmlTools.h"

#include <QDomDocument>
#include <QElapsedTimer>
#include <QXmlStreamReader>

namespace {

constexpr int ChunkSize = 4096; // bytes

/** Gives a reader its data piece by piece, and gives up when the bounds are exceeded. */
class BoundedSource
{
public:
    explicit BoundedSource(const QByteArray &data) : m_data(data)
    {
        XmlTools::prepareReader(m_reader);
        m_timer.start();
        if (data.size() > ForeignXml::MaximumSize)
            raise("The document is too large.");
    }

    QXmlStreamReader &reader() { return m_reader; }

    QXmlStreamReader::TokenType readNext()
    {
        int fed = 0;
        while (m_reader.readNext() == QXmlStreamReader::Invalid && wantsMore()) {
            if (fed >= ForeignXml::MaximumTokenSize)
                raise("A tag or text is too long.");
            m_reader.addData(m_data.mid(m_position, ChunkSize));
            m_position += ChunkSize;
            fed += ChunkSize;
        }
        if (m_timer.hasExpired(ForeignXml::MaximumTime))
            raise("Reading takes too long.");
        return m_reader.tokenType();
    }

    void raise(const char *error) { m_reader.raiseError(QString::fromLatin1(error)); }

private:
    bool wantsMore() const
    {
        return m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError &&
               m_position < m_data.size();
    }

    QXmlStreamReader m_reader;
    QByteArray m_data;
    int m_position = 0;
    QElapsedTimer m_timer;
};

// A document is there only when it has made its first element.
QDomNode append(const QDomElement &element, QDomNode parent, QDomDocument &document)
{
    return parent.isNull() ? document.appendChild(element) : parent.appendChild(element);
}

} // namespace

bool ForeignXml::parse(QDomDocument &document, const QByteArray &data, QString *errorText)
{
    document = QDomDocument();
    BoundedSource source(data);
    QXmlStreamReader &reader = source.reader();
    QDomNode parent;
    int depth = 0;
    while (!reader.hasError() && source.readNext() != QXmlStreamReader::EndDocument) {
        if (reader.isStartElement()) {
            if (reader.attributes().size() > MaximumAttributes)
                source.raise("An element has too many attributes.");
            else if (++depth > XmlTools::MaximumDepth)
                source.raise("Elements are nested too deeply.");
            else
                parent = append(XmlTools::createElement(document, reader), parent, document);
        } else if (reader.isEndElement()) {
            parent = parent.parentNode();
            --depth;
        } else if (reader.isCharacters() && depth > 0) {
            parent.appendChild(document.createTextNode(reader.text().toString()));
        }
    }
    if (reader.hasError() && errorText)
        *errorText = reader.errorString();
    return !reader.hasError();
}
