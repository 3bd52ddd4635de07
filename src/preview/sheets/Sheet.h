#pragma once

#include "preview/sheets/DrawnDesign.h"
#include "preview/sheets/SheetDesigns.h"
#include "preview/sheets/SheetOptions.h"

#include <memory>
#include <QSizeF>
#include <QVector>

class QPainter;

/**
 * Designs laid out on pages. A sheet is made of sections, each of which needs a few
 * designs at a time and may be painted without the others, so that no sheet is too long
 * for the memory, and any page of it can be shown at once.
 */
class Sheet
{
public:
    /** Designs from `first` to before `end`. */
    struct Section
    {
        int first;
        int end;
    };

    /** @param area what may be painted of each page, in hundredths of a millimetre */
    static std::unique_ptr<Sheet> make(const SheetDesigns &designs, const SheetOptions &options,
                                       const QSizeF &area);
    virtual ~Sheet() = default;

    Sheet(const Sheet &) = delete;
    Sheet &operator=(const Sheet &) = delete;

    /** In the order of the pages. */
    const SheetDesigns &designs() const { return m_designs; }
    QVector<SheetDesign> designsOf(const Section &section) const;
    const QVector<Section> &sections() const { return m_sections; }
    virtual DrawingWish wish() const = 0;

    /**
     * @param drawn the designs of the section; those that are not there yet may be null
     *        ones, or lacking at the end
     */
    virtual int pageCount(int section, const QVector<DrawnDesign> &drawn) const = 0;
    /**
     * The painter's coordinates are hundredths of a millimetre, from the upper left
     * corner of the area. @param page counted from 0, of the section
     */
    virtual void paint(QPainter &painter, int section, int page,
                       const QVector<DrawnDesign> &drawn) const = 0;

protected:
    Sheet(const SheetDesigns &designs, const SheetOptions &options, const QSizeF &area);

    /** Pixels of a picture of that many hundredths of a millimetre. */
    static int pixelsOf(double length);

    SheetDesigns m_designs;
    QVector<Section> m_sections;
    const SheetOptions m_options;
    const QSizeF m_area;
};
