#pragma once

#include "support/Rows.h"
#include "support/TableFile.h"

namespace TestSupport {

/** Adds the rows of tests/data/formats/FORMAT.txt, in the columns "bytes" and "points". */
inline void addDesigns(const QString &format)
{
    const Rows<QByteArray, QString> row("bytes", "points");
    for (const QStringList &columns : tableFile("formats/" + format + ".txt"))
        row(columns.at(0).toUtf8(), QByteArray::fromHex(columns.at(1).toUtf8()), columns.at(2));
}

} // namespace TestSupport
