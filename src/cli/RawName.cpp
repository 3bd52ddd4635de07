#include "cli/RawName.h"

#include <algorithm>

namespace {

constexpr ushort FirstRaw = 0xDC80;
constexpr ushort LastRaw = 0xDCFF;
constexpr ushort RawOffset = 0xDC00;
constexpr int LongestCharacter = 4; // bytes

/** How many bytes make up the valid character at the front; 0 when there is none. */
int characterLength(const QByteArray &bytes)
{
    for (int length = 1; length <= std::min(LongestCharacter, int(bytes.size())); ++length) {
        const QByteArray character = bytes.left(length);
        if (QString::fromUtf8(character).toUtf8() == character)
            return length;
    }
    return 0;
}

/** Of a pair that stands for one character the second half is no raw byte. */
bool isRawAt(const QString &text, int index)
{
    const ushort unit = text.at(index).unicode();
    return unit >= FirstRaw && unit <= LastRaw &&
           (index == 0 || !text.at(index - 1).isHighSurrogate());
}

} // namespace

QString RawName::decoded(const QByteArray &bytes)
{
    QString plain = QString::fromUtf8(bytes);
    if (plain.toUtf8() == bytes)
        return plain;
    QString text;
    for (int i = 0; i < bytes.size();) {
        const int length = characterLength(bytes.mid(i, LongestCharacter));
        text += length > 0 ? QString::fromUtf8(bytes.mid(i, length))
                           : QString(QChar(ushort(RawOffset + uchar(bytes.at(i)))));
        i += std::max(1, length);
    }
    return text;
}

QByteArray RawName::encoded(const QString &text)
{
    QByteArray bytes;
    int begin = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (!isRawAt(text, i))
            continue;
        bytes += text.mid(begin, i - begin).toUtf8();
        bytes += char(text.at(i).unicode() - RawOffset);
        begin = i + 1;
    }
    return bytes + text.mid(begin).toUtf8();
}

bool RawName::isRaw(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isRawAt(text, i))
            return true;
    }
    return false;
}
