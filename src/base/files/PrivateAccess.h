#pragma once

#include <QString>

/** Keeps from other users of the computer what is nobody's business. Any thread. */
namespace PrivateAccess {

/**
 * Takes from everyone but the owner what they may do with a file or folder. What is not
 * ours, or lies where there are no permissions, stays as it is.
 */
void takeFromOthers(const QString &path);

/** Makes a folder for the user alone, and those above it as usual. False when it can't. */
bool makeFolder(const QString &path);

} // namespace PrivateAccess
