#pragma once

#include <QColor>

/** A colour in CIELAB, for the standard illuminant D65. */
struct LabColor
{
    double lightness = 0; ///< L*, 0 (black) to 100 (white)
    double a = 0;         ///< a*, from green to red
    double b = 0;         ///< b*, from blue to yellow

    /** @p color as an sRGB screen shows it; its alpha takes no part. */
    static LabColor of(const QColor &color);
};

namespace ColorDifference {

/**
 * The difference of two colours as the eye sees it, by CIEDE2000 with all weights 1:
 * 0 for the same colour, about 1 where a difference begins to show, 100 between black
 * and white. Source: G. Sharma, W. Wu, E. N. Dalal, "The CIEDE2000 Color-Difference
 * Formula: Implementation Notes, Supplementary Test Data, and Mathematical
 * Observations", Color Research and Application 30 (2005), 21-30.
 */
double ciede2000(const LabColor &first, const LabColor &second);

} // namespace ColorDifference
