#pragma once

#include <QByteArray>
#include <QString>

/**
 * Names of files that are no valid UTF-8, as text and back. Each byte that is none stands
 * as a lone surrogate from U+DC80 to U+DCFF, which no valid text holds and which is shown
 * as a replacement character.
 */
namespace RawName {

QString decoded(const QByteArray &bytes);
QByteArray encoded(const QString &text);

/** Whether the name holds a byte that is no text. */
bool isRaw(const QString &text);

} // namespace RawName
