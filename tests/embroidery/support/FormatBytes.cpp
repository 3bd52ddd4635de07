#include "embroidery/support/FormatBytes.h"

namespace TestSupport {

QByteArray le16(int value)
{
    QByteArray bytes;
    bytes.append(static_cast<char>(value & 255)).append(static_cast<char>(value >> 8 & 255));
    return bytes;
}

QByteArray le32(int value)
{
    return le16(value & 0xFFFF) + le16(value >> 16 & 0xFFFF);
}

QByteArray pecBlock(const PecParts &parts)
{
    const int changes = parts.colors.size() - 1;
    const int length = parts.length < 0 ? 20 + parts.stitches.size() : parts.length;
    QByteArray block = QByteArray(3, '#') + parts.label + QByteArray(15, '#');
    block.append(static_cast<char>(parts.width)).append(static_cast<char>(parts.height));
    block.append(QByteArray(12, '#'));
    block.append(static_cast<char>(changes)).append(parts.colors);
    block.append(QByteArray(464 - changes, '#'));
    block.append(le32(length).left(3)).append(QByteArray(15, '#'));
    return block + parts.stitches + parts.graphics;
}

QByteArray pecFile(const PecParts &parts)
{
    return "#PEC0001" + pecBlock(parts);
}

QByteArray xxxFile(const QVector<unsigned int> &colors, const QByteArray &records)
{
    QByteArray bytes = QByteArray(39, '#') + le16(colors.size()) + QByteArray(211, '#') +
                       le32(256 + records.size()) + records + QByteArray(6, '#');
    for (const unsigned int color : colors) {
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes.append(static_cast<char>(color >> shift & 255));
    }
    return bytes;
}

QByteArray jefFile(const QVector<int> &colors, const QByteArray &records)
{
    QByteArray bytes = le32(116 + 4 * colors.size()) + QByteArray(20, '#') + le32(colors.size()) +
                       QByteArray(88, '#');
    for (const int color : colors)
        bytes.append(le32(color));
    return bytes + records;
}

QByteArray sewFile(const QVector<int> &colors, const QByteArray &records)
{
    QByteArray bytes = le16(colors.size());
    for (const int color : colors)
        bytes.append(le16(color));
    return bytes.leftJustified(0x1D78, '\0') + records;
}

QByteArray husFile(int stitchCount, const QVector<int> &colors, const QByteArray &commands,
                   const QByteArray &x, const QByteArray &y)
{
    const int start = 42 + 2 * colors.size();
    QByteArray bytes = "HUS!" + le32(stitchCount) + le32(colors.size()) + QByteArray(8, '#');
    bytes.append(le32(start)).append(le32(start + commands.size()));
    bytes.append(le32(start + commands.size() + x.size()));
    bytes.append(QByteArray(10, '#'));
    for (const int color : colors)
        bytes.append(le16(color));
    return bytes + commands + x + y;
}

} // namespace TestSupport
