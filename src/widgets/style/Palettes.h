#pragma once

#include <QPalette>

/** The program's own palettes, and what makes a desktop's palette fit to read. */
namespace Palettes {

QPalette light();
QPalette dark();

/**
 * Moves each colour of text towards black or white until its contrast to what it stands on is at
 * least 4.5 to 1. Only for what is enabled.
 */
void makeReadable(QPalette &palette);

/** Whether a user would take the two for the same. */
bool haveSameColors(const QPalette &first, const QPalette &second);

} // namespace Palettes
