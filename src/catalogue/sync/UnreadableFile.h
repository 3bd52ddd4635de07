#pragma once

#include <QString>

/** A file that a scan looked into and could make no design of. */
struct UnreadableFile
{
    QString path;
    QString reason;
    bool damaged; ///< its bytes are no design that can be read; otherwise the disk gave none
};
