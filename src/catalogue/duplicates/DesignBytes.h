#pragma once

#include <QByteArray>
#include <QCoreApplication>

struct DuplicateCandidate;

/** The bytes of a design file, as long as they are those that the catalogue knows. Any thread. */
class DesignBytes
{
    Q_DECLARE_TR_FUNCTIONS(DesignBytes)

public:
    /** No more than the reading of a design takes. @throws Error as verify() */
    static QByteArray read(const DuplicateCandidate &design);

    /** @throws Error when the file is missing, cannot be read or has another content by now */
    static void verify(const DuplicateCandidate &design);
};
