#include "embroidery/EmbThreadJanome.h"
#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/NearestThread.h"
#include "writers/Steps.h"

#include <stdexcept>

using namespace Embroidery;

// EXP, JEF and SEW share one scheme: a step is a pair of bytes, and the byte 0x80
// in front announces a command. Their y points up.
namespace DesignWriters {

namespace {

constexpr int LongestStep = 127;
constexpr int Escape = 0x80;
constexpr int NoCode = -1;
constexpr int SewStitchOffset = 7544;
constexpr int SewMostColors = (SewStitchOffset - 2) / 2;
/** Chart entry 0 stands for unknown. */
constexpr int FirstJanomeColor = 1;

/** The command bytes of one format; NoCode where it has none. */
struct Codes
{
    int colorChange;
    int move;
    int trim;
};

void writeCommand(ByteSink &sink, int code, int dx, int dy)
{
    if (code == NoCode)
        return;
    sink.u8(Escape);
    sink.u8(code);
    sink.u8(dx);
    sink.u8(-dy);
}

void writeSteps(ByteSink &sink, const EmbPattern &pattern, const Codes &codes)
{
    for (const Step &step : relativeSteps(pattern, LongestStep)) {
        switch (step.command) {
        case StitchCommandStitch:
            sink.u8(step.dx);
            sink.u8(-step.dy);
            break;
        case StitchCommandMove:
            // No way at all would read as a trim in JEF.
            if (step.dx != 0 || step.dy != 0)
                writeCommand(sink, codes.move, step.dx, step.dy);
            break;
        case StitchCommandTrim:
            writeCommand(sink, codes.trim, 0, 0);
            break;
        case StitchCommandColorChange:
            writeCommand(sink, codes.colorChange, 0, 0);
            break;
        default:
            break;
        }
    }
}

QVector<int> janomeColors(const EmbPattern &pattern)
{
    return nearestIndices(pattern.threadList(), EmbThreadJanome::getThreadSet(), FirstJanomeColor);
}

} // namespace

QByteArray writeExp(const EmbPattern &pattern)
{
    ByteSink sink;
    writeSteps(sink, pattern, {0x01, 0x04, 0x80});
    return sink.bytes();
}

QByteArray writeJef(const EmbPattern &pattern)
{
    const QVector<int> colors = janomeColors(pattern);
    ByteSink sink;
    sink.u32(116 + 4 * colors.size());
    sink.fill(20);
    sink.u32(colors.size());
    sink.fill(88);
    for (int color : colors)
        sink.u32(color);
    writeSteps(sink, pattern, {0x01, 0x02, 0x02});
    writeCommand(sink, 0x10, 0, 0);
    return sink.bytes();
}

QByteArray writeSew(const EmbPattern &pattern)
{
    const QVector<int> colors = janomeColors(pattern);
    if (colors.size() > SewMostColors)
        throw std::length_error("too many threads for the header");
    ByteSink sink;
    sink.u16(colors.size());
    for (int color : colors)
        sink.u16(color);
    sink.fill(SewStitchOffset - sink.size());
    writeSteps(sink, pattern, {0x01, 0x04, NoCode});
    return sink.bytes();
}

} // namespace DesignWriters
