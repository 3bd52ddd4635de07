#include "embroidery/XxxReader.h"

#include "embroidery/EmbPattern.h"

namespace Embroidery {

namespace {

constexpr int ColorCountOffset = 39;
constexpr int PaletteOffsetOffset = 252;
constexpr int StitchesOffset = 256;
constexpr int PaletteHeaderSize = 6;

} // namespace

XxxReader::XxxReader() : EmbReader(QStringLiteral("xxx")) {}

void XxxReader::read()
{
    skip(ColorCountOffset);
    const int colorCount = readInt16LE();
    seek(PaletteOffsetOffset);
    const int palette = readInt32LE();
    seek(static_cast<int>(qint64(palette) + PaletteHeaderSize));
    readColors(colorCount);
    seek(StitchesOffset);
    pattern().reserve(static_cast<int>(size() / 2) + 1);
    // The count of bytes consumed, not the cursor, is held against the palette: a stream
    // is meant to be closed by its own record, and the palette is but the last resort.
    while (tell() < palette && readRecord()) {
    }
    pattern().end();
}

void XxxReader::readColors(int count)
{
    for (int i = 0; i < count; ++i) {
        const auto rgb = static_cast<unsigned int>(readInt32BE());
        pattern().addThread(
            QSharedPointer<EmbThread>::create(rgb, QString(), QString(), QString(), QString()));
    }
}

/** Reads one record; false if it closes the stream. */
bool XxxReader::readRecord()
{
    const int a = readInt8();
    if (a == 0x7D || a == 0x7E) {
        const int x = signed16(readInt16LE());
        const int y = signed16(readInt16LE());
        pattern().move(x, -y);
        return true;
    }
    if (a == 0x7F)
        return readControl();
    const int b = readInt8();
    pattern().stitch(signed8(a), -signed8(b));
    return true;
}

bool XxxReader::readControl()
{
    const int code = readInt8();
    const int x = signed8(readInt8());
    const int y = -signed8(readInt8());
    switch (code) {
    case 8:
        pattern().color_change();
        return true;
    case 3:
        if (x != 0 || y != 0)
            pattern().move(x, y);
        pattern().trim();
        return true;
    case 1:
        pattern().move(x, y);
        return true;
    default:
        return false;
    }
}

} // namespace Embroidery
