#pragma once

#include <QString>

/** What the program asks of the desktop around it. */
class DesktopInteraction
{
public:
    /**
     * Shows the file at \a path selected in the desktop's file manager, or at least opens its
     * folder. Returns at once; a file manager that is slow to answer holds nothing up.
     */
    static void revealInFinder(const QString &path);

    /** The text of a menu entry that reveals a file, in the words of the platform. */
    static QString revealActionTextString();
};
