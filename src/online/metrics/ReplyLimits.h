#pragma once

#include <QtGlobal>

class QNetworkReply;
class QNetworkRequest;

/**
 * Bounds on what a server can make the program do: how long a silent transfer
 * lives and how much of an answer is held in memory.
 */
namespace ReplyLimits {

/** A transfer that stands still this long, in milliseconds, is given up. */
constexpr int TransferTimeout = 30'000;

/** Bytes of an answer that are read; a longer answer is given up. */
constexpr qint64 MaxReplySize = qint64(4) * 1024 * 1024;

/**
 * Prepares @p request: gives it the timeout, and asks for an answer that is not
 * compressed, so that its size on the wire is its size in memory.
 */
void prepare(QNetworkRequest &request);

/** Gives up @p reply, with an error, as soon as its body exceeds MaxReplySize. */
void apply(QNetworkReply *reply);

} // namespace ReplyLimits
