#include "embroidery/SewReader.h"

#include "embroidery/EmbPattern.h"

namespace Embroidery {

namespace {

constexpr int StitchesOffset = 0x1D78;
constexpr int ColorChangeBit = 0x01;

} // namespace

SewReader::SewReader() : JanomeReader(QStringLiteral("sew")) {}

void SewReader::read()
{
    readPalette();
    seek(StitchesOffset);
    readStitches();
}

void SewReader::readPalette()
{
    const int count = readInt16LE();
    for (int i = 0; i < count; ++i)
        addChartThread(readInt16LE());
}

bool SewReader::control(int code, int x, int y)
{
    if (code & ColorChangeBit)
        pattern().color_change();
    else if (code == 0x02 || code == 0x04)
        pattern().move(x, y);
    else if (code == 0x10)
        pattern().stitch(x, y);
    // Other codes say nothing here, and none ends the data.
    return true;
}

} // namespace Embroidery
