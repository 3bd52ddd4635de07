#include "base/Hex.h"

namespace {

/** Negative for what is no digit. */
int valueOf(uint character)
{
    if (character - '0' < 10)
        return int(character - '0');
    const uint letter = (character | 0x20) - 'a';
    return letter < 6 ? int(letter) + 10 : -1;
}

/** Fills @p bytes, unless one of the twice as many digits is none. */
template <class Unit>
bool decode(const Unit *digits, QByteArray &bytes)
{
    for (char &byte : bytes) {
        const int high = valueOf(*digits++);
        const int low = valueOf(*digits++);
        if ((high | low) < 0)
            return false;
        byte = char(high * 16 + low);
    }
    return true;
}

} // namespace

QByteArray Hex::decoded(const QString &digits)
{
    QByteArray bytes(digits.length() / 2, Qt::Uninitialized);
    return digits.length() % 2 == 0 && decode(digits.utf16(), bytes)
               ? bytes
               : QByteArray::fromHex(digits.toLatin1());
}

QByteArray Hex::decoded(const char *digits, int count)
{
    QByteArray bytes(count / 2, Qt::Uninitialized);
    return count % 2 == 0 && decode(digits, bytes)
               ? bytes
               : QByteArray::fromHex(QByteArray::fromRawData(digits, count));
}
