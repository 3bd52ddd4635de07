#pragma once

/** The user's wish to stop, by Ctrl-C or by a termination signal. */
namespace Interrupt {

/**
 * From now on the first such signal is only noted; a second one ends the process
 * at once.
 */
void install();

/** The number of the signal that came; 0 when none did. */
int received();

} // namespace Interrupt
