#include "embroidery/JefReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/IOException.h"

namespace Embroidery {

namespace {

constexpr char ControlRecord = '\x80';

} // namespace

JefReader::JefReader() : EmbReader(QStringLiteral("jef")) {}

void JefReader::read()
{
    const int stitches = readInt32LE();
    skip(20);
    const int colorCount = readInt32LE();
    skip(88);
    readPalette(colorCount);
    seek(stitches);
    readStitches();
}

void JefReader::readPalette(int count)
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadJanome::getThreadSet();
    for (int i = 0; i < count; ++i) {
        // The smallest integer has no positive counterpart of its own width.
        const qint64 index = qAbs(qint64(readInt32LE()));
        pattern().addThread(chart.at(static_cast<int>(index % chart.size())));
    }
}

void JefReader::readStitches()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / 2) + 1);
    char b[2];
    while (!atEnd()) {
        if (readFully(b, 2) != 2)
            throw IOException(QStringLiteral("Unexpected end of file."));
        if (b[0] != ControlRecord) {
            design.stitch(static_cast<float>(signed8(b[0])), static_cast<float>(-signed8(b[1])));
            continue;
        }
        const int code = b[1] & 0xFF;
        if (readFully(b, 2) != 2 || !control(code, signed8(b[0]), -signed8(b[1])))
            break;
    }
    design.end();
}

/** Acts on a control record; false if it ends the data. */
bool JefReader::control(int code, int x, int y)
{
    switch (code) {
    case 0x01:
        pattern().color_change();
        return true;
    case 0x02:
        if (x == 0 && y == 0)
            pattern().trim();
        else
            pattern().move(static_cast<float>(x), static_cast<float>(y));
        return true;
    default:
        return false;
    }
}

} // namespace Embroidery
