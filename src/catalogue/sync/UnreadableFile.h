#pragma once

#include <QString>

/** A file that a scan looked into and could make no design of. */
struct UnreadableFile
{
    QString path;
    QString reason;
    bool damaged; ///< its bytes were read, but are no design; otherwise the disk gave none
};
