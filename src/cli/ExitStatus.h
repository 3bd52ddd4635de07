#pragma once

/** How the process ends. */
enum ExitStatus {
    Success = 0,
    Failure = 1,        ///< a file could not be read, or another error
    WrongUsage = 2,     ///< the command line was wrong
    CatalogueInUse = 3, ///< the organiser or another scan holds the catalogue
};
