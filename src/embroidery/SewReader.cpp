#include "embroidery/SewReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThreadJanome.h"
#include "embroidery/IOException.h"

namespace Embroidery {

namespace {

constexpr int StitchesOffset = 0x1D78;
constexpr char ControlRecord = '\x80';
constexpr int ColorChangeBit = 0x01;

} // namespace

SewReader::SewReader() : EmbReader(QStringLiteral("sew")) {}

void SewReader::read()
{
    readPalette();
    readStitches();
}

void SewReader::readPalette()
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadJanome::getThreadSet();
    const int count = readInt16LE();
    for (int i = 0; i < count; ++i)
        pattern().addThread(chart.at(readInt16LE() % chart.size()));
}

void SewReader::readStitches()
{
    seek(StitchesOffset);
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() - StitchesOffset) / 2 + 1);
    char b[2];
    while (!atEnd()) {
        if (readFully(b, 2) != 2)
            throw IOException(QStringLiteral("Unexpected end of file."));
        if (b[0] != ControlRecord) {
            design.stitch(static_cast<float>(signed8(b[0])), static_cast<float>(-signed8(b[1])));
            continue;
        }
        const int code = b[1] & 0xFF;
        if (readFully(b, 2) != 2)
            break;
        control(code, signed8(b[0]), -signed8(b[1]));
    }
    design.end();
}

void SewReader::control(int code, int x, int y)
{
    const auto dx = static_cast<float>(x);
    const auto dy = static_cast<float>(y);
    if (code & ColorChangeBit)
        pattern().color_change();
    else if (code == 0x02 || code == 0x04)
        pattern().move(dx, dy);
    else if (code == 0x10)
        pattern().stitch(dx, dy);
}

} // namespace Embroidery
