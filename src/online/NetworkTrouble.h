#pragma once

#include <QString>

class QNetworkReply;

/** What went wrong with a request, in the words of people who don't run servers. */
namespace NetworkTrouble {

/**
 * A cause and what may help, then the address in a line of its own, without what the program
 * tells the server. Of an answer that came without an error it says that it cannot be used.
 */
QString explain(const QNetworkReply &reply);

} // namespace NetworkTrouble
