#include "online/XmlGuard.h"

#include <QXmlStreamReader>

namespace {
constexpr int MaxDepth = 100;
}

bool XmlGuard::isHarmless(const QByteArray &data)
{
    QXmlStreamReader reader(data);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty())
                return false;
            break;
        case QXmlStreamReader::StartElement:
            if (++depth > MaxDepth)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return true;
}
