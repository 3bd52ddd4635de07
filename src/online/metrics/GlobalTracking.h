#pragma once

/** The usage events of the program's start and end. */
class GlobalTracking
{
public:
    static void applicationStarted();

    /** Reports the end and waits, two seconds at most, for what is under way. */
    static void aboutToQuit();
};
