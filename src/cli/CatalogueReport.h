#pragma once

#include "catalogue/records/IFile.h"
#include "cli/Console.h"
#include "cli/DesignFormat.h"
#include <QCoreApplication>
#include <QList>
#include <QSharedPointer>

/** Prints records of the catalogue. */
class CatalogueReport
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueReport)

public:
    using Files = QList<QSharedPointer<IFile>>;

    explicit CatalogueReport(StandardOutput &output) : m_output(output) {}

    /** One object per record, a line each. */
    void writeJson(const Files &files);
    /**
     * A line of column names, then a line per record. The tags are one field, which is
     * such a line in itself, with semicolons.
     */
    void writeCsv(const Files &files);
    /** A line of @p format per record, with a NUL behind it rather than a line's end if asked. */
    void writeLines(const Files &files, const DesignFormat &format, bool nullSeparated);
    /** Aligned columns below their heads, and a closing line with the number of designs. */
    void writeTable(const Files &files);

private:
    StandardOutput &m_output;
};
