#pragma once

/**
 * How the names of files are spelled in bytes. The folder walk reads them as UTF-8, but
 * some builds of Qt write them by the locale: there, in a bare session or a timed job, no
 * design with an accent in its path would be found, and a scan would take them all for
 * deleted.
 */
class FileNameEncoding
{
public:
    /** UTF-8 whatever the locale says. To be called ahead of the application object. */
    static void useUtf8();
};
