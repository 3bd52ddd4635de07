#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/Steps.h"

using namespace Embroidery;

namespace DesignWriters {

namespace {

constexpr int StitchOffset = 256;
/** The values above it announce commands, so no step to the right is longer. */
constexpr int LongestStep = 124;
constexpr int LongMove = 0x7E;
constexpr int Control = 0x7F;
constexpr int TrimControl = 3;
constexpr int ColorControl = 8;
constexpr int EndControl = 0;

void writeControl(ByteSink &sink, int code)
{
    sink.u8(Control);
    sink.u8(code);
    sink.u16(0);
}

} // namespace

QByteArray writeXxx(const EmbPattern &pattern)
{
    ByteSink stitches;
    for (const Step &step : relativeSteps(pattern, LongestStep)) {
        switch (step.command) {
        case StitchCommandStitch:
            stitches.u8(step.dx);
            stitches.u8(-step.dy);
            break;
        case StitchCommandMove:
            stitches.u8(LongMove);
            stitches.u16(step.dx);
            stitches.u16(-step.dy);
            break;
        case StitchCommandTrim:
            writeControl(stitches, TrimControl);
            break;
        case StitchCommandColorChange:
            writeControl(stitches, ColorControl);
            break;
        default:
            break;
        }
    }
    writeControl(stitches, EndControl);

    const QList<QSharedPointer<EmbThread>> threads = pattern.threadList();
    ByteSink sink;
    sink.fill(39);
    sink.u16(threads.size());
    sink.fill(211);
    sink.u32(StitchOffset + stitches.size());
    sink.append(stitches.bytes());
    sink.fill(6);
    for (const QSharedPointer<EmbThread> &thread : threads)
        sink.u32BigEndian(thread->getRGB() & 0x00FFFFFF);
    return sink.bytes();
}

} // namespace DesignWriters
