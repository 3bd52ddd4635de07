#pragma once

/** How the process ends. */
enum ExitStatus {
    Success = 0,
    Failure = 1,         ///< something could not be read or written
    WrongUsage = 2,      ///< the command line was wrong
    CatalogueInUse = 3,  ///< the organiser or another scan holds the catalogue
    FolderMissing = 4,   ///< a smart folder is not there, or suddenly empty
    SignalReceived = 128 ///< plus the number of the signal: 130 after Ctrl-C
};
