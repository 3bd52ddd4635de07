#include "drives/TransferResult.h"

QString TransferResult::reasonText() const
{
    switch (reason) {
    case None:
        return {};
    case NoSpace:
        return tr("There is no space left on the drive.");
    case FolderFull:
        return tr("The drive has space left, but its top folder cannot hold more files.");
    case NotWritable:
        return tr("The drive, or the file on it, is write-protected.");
    case NameNotAllowed:
        return tr("The drive's file system does not allow a file of this name.");
    case SourceGone:
        return tr("The file is no longer in its folder.");
    case SourceUnreadable:
        return tr("The file cannot be read.");
    case DriveGone:
        return tr("The drive is no longer there.");
    case Other:
        break;
    }
    return systemText;
}
