#pragma once

/** Lengths on the paper, in hundredths of a millimetre: fine enough for the widths of letters. */
namespace PaperUnits {

constexpr int PerInch = 2540;
constexpr double Millimetre = 100.0;
/** A tenth of a millimetre, which designs are measured in. */
constexpr double DesignUnit = 10.0;
/** What the sizes of fonts are told in. */
constexpr double Point = PerInch / 72.0;

} // namespace PaperUnits
