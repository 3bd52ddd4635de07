#include "embroidery/JefReader.h"

#include "embroidery/EmbPattern.h"

namespace Embroidery {

JefReader::JefReader() : JanomeReader(QStringLiteral("jef")) {}

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
    // The smallest integer has no positive counterpart of its own width.
    for (int i = 0; i < count; ++i)
        addChartThread(qAbs(qint64(readInt32LE())));
}

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
            pattern().move(x, y);
        return true;
    default:
        return false;
    }
}

} // namespace Embroidery
