#pragma once

#include <QByteArray>
#include <QString>

/**
 * What QByteArray::fromHex gives, where there are nothing but pairs of digits at a quarter of
 * its cost: a scan decodes the digest of each design and that of each preview. Any thread.
 */
namespace Hex {

QByteArray decoded(const QString &digits);

/** @param digits as many characters as @p count says */
QByteArray decoded(const char *digits, int count);

} // namespace Hex
