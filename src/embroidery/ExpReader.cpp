#include "embroidery/ExpReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/IOException.h"

namespace Embroidery {

namespace {

constexpr char ControlRecord = '\x80';

} // namespace

ExpReader::ExpReader() : EmbReader(QStringLiteral("exp")) {}

void ExpReader::read()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / 2) + 1);
    char b[2];
    while (!atEnd()) {
        if (readFully(b, 2) != 2)
            throw IOException(QStringLiteral("Unexpected end of file"));
        if (b[0] != ControlRecord) {
            design.stitch(signed8(b[0]), -signed8(b[1]));
            continue;
        }
        const int code = b[1] & 0xFF;
        if (readFully(b, 2) != 2)
            throw IOException(QStringLiteral("Unexpected end of file"));
        control(code, signed8(b[0]), -signed8(b[1]));
    }
    design.end();
}

void ExpReader::control(int code, int x, int y)
{
    EmbPattern &design = pattern();
    switch (code) {
    case 0x01:
        design.color_change();
        if (x != 0 || y != 0)
            design.move(x, y);
        break;
    case 0x02:
        design.stitch(x, y);
        break;
    case 0x04:
        design.move(x, y);
        break;
    case 0x80:
        design.trim();
        break;
    default:
        break;
    }
}

} // namespace Embroidery
