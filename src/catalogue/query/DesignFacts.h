#pragma once

#include "catalogue/records/IFile.h"

/** What is known of a design. */
namespace DesignFacts {

/** Whether a reader has made a design of the file: what it is made of is known then. */
inline bool areKnown(const IFile &file)
{
    return file.designSize().width() >= 0 || file.stitchCount() > 0 ||
           file.threadsProp()->count() > 0;
}

/** Whether the file was looked into, but no reader could make a design of it. */
inline bool areUnreadable(const IFile &file)
{
    return !areKnown(file) && !file.contentHashProp()->value().isEmpty();
}

} // namespace DesignFacts
