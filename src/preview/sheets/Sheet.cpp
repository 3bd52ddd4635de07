#include "preview/sheets/Sheet.h"

#include "preview/sheets/ContactSheet.h"
#include "preview/sheets/PaperUnits.h"
#include "preview/sheets/WorkSheet.h"

#include <algorithm>

namespace {

// A stitch is a few dots wide; with more a page of pictures takes megabytes.
constexpr double DotsPerInch = 200.0;

} // namespace

std::unique_ptr<Sheet> Sheet::make(const SheetDesigns &designs, const SheetOptions &options,
                                   const QSizeF &area)
{
    if (options.kind == SheetOptions::Work)
        return std::make_unique<WorkSheet>(designs, options, area);
    return std::make_unique<ContactSheet>(designs, options, area);
}

Sheet::Sheet(const SheetDesigns &designs, const SheetOptions &options, const QSizeF &area)
    : m_designs(designs), m_options(options), m_area(area)
{
}

QVector<SheetDesign> Sheet::designsOf(const Section &section) const
{
    return m_designs.mid(section.first, section.end - section.first);
}

int Sheet::pixelsOf(double length)
{
    return std::max(1, int(length * DotsPerInch / PaperUnits::PerInch));
}
