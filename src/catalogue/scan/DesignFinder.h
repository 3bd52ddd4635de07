#pragma once

#include "base/files/FoundFiles.h"

#include <memory>
#include <QStringList>

class IProgressAbortListener;

/**
 * Walks over folders on a thread of its own, so that a drive that doesn't answer doesn't
 * keep the user from asking for the end.
 */
class DesignFinder
{
public:
    /**
     * All files below the folders, folder by folder, each in the walk's order.
     * @param listener hears of each folder that is entered, on the calling thread and in
     *        order; when it asks for the end, what was found so far is returned, or nothing
     * @throws std::system_error when there is no thread to be had, and what the walk throws
     */
    static FoundFiles find(const QStringList &folders, IProgressAbortListener &listener);

private:
    struct Walk;
};
