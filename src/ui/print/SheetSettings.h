#pragma once

#include "preview/sheets/SheetOptions.h"

/** What the user has chosen for the last sheet. */
namespace SheetSettings {

/** Where nothing was chosen yet, for the paper of the system's country. */
SheetOptions load();
/** All but the title, which belongs to one sheet alone. */
void save(const SheetOptions &options);

} // namespace SheetSettings
