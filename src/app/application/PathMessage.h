#pragma once

#include <QByteArray>
#include <QStringList>

/**
 * The files and folders that a later start was asked to open, as it sends them to the
 * primary: absolute paths in the file system's encoding, each ended by a NUL.
 */
namespace PathMessage {

/** Longer ones are neither sent nor taken; bytes. */
constexpr int MaxSize = 1 << 20;

/** As many of @p paths, from the first on, as fit. */
QByteArray encode(const QStringList &paths);

/** Those paths in @p message, which anybody may have sent, that are there. */
QStringList decode(const QByteArray &message);

} // namespace PathMessage
