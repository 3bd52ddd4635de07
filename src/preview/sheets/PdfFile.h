#pragma once

#include "preview/sheets/SheetDesigns.h"
#include "preview/sheets/SheetOptions.h"

#include <QString>

class IProgressAbortListener;

/** Sheets as PDF. */
namespace PdfFile {

/**
 * Writes the file, or leaves what was there before: when the user asks for the end, and
 * for every failure.
 * @param path its folder must be there
 * @return the number of pages; 0 when the user has asked for the end
 * @throws Error
 */
int write(const QString &path, const SheetDesigns &designs, const SheetOptions &options,
          IProgressAbortListener &progress);

} // namespace PdfFile
