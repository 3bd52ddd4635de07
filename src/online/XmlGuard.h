#pragma once

#include <QByteArray>

/** Looks at XML from outside before it is made into a document tree. */
class XmlGuard
{
public:
    /**
     * False for what a tree cannot take: elements nested so deeply that taking the
     * tree down would overflow the stack, and entities of the document's own.
     * Malformed text counts as harmless, since the parser refuses it.
     */
    static bool isHarmless(const QByteArray &data);
};
