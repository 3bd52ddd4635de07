#include "embroidery/EmbThreadHus.h"
#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/HusCompressor.h"
#include "writers/NearestThread.h"
#include "writers/Steps.h"

#include <cmath>

using namespace Embroidery;

namespace DesignWriters {

namespace {

constexpr int LongestStep = 127;
constexpr int HeaderSize = 42;
/** Any four bytes will do here. */
constexpr int Magic = 0x4C505048;

/** The stream's byte for a command; 0 for one that the format has not. */
int commandByte(int command)
{
    switch (command) {
    case StitchCommandStitch:
        return 0x80;
    case StitchCommandMove:
        return 0x81;
    case StitchCommandColorChange:
        return 0x84;
    default:
        return 0;
    }
}

} // namespace

QByteArray writeHus(const EmbPattern &pattern)
{
    QByteArray commands;
    QByteArray xSteps;
    QByteArray ySteps;
    for (const Step &step : relativeSteps(pattern, LongestStep)) {
        const int byte = commandByte(step.command);
        if (byte == 0)
            continue;
        commands.append(char(byte));
        xSteps.append(char(step.dx));
        ySteps.append(char(-step.dy));
    }
    const int stitchCount = commands.size();
    commands = HusCompressor::compress(commands);
    xSteps = HusCompressor::compress(xSteps);
    ySteps = HusCompressor::compress(ySteps);

    const QRectF bounds = pattern.boundingRect();
    const QVector<int> colors = nearestIndices(pattern.threadList(), EmbThreadHus::getThreadSet());
    const int commandOffset = HeaderSize + 2 * colors.size();
    ByteSink sink;
    sink.u32(Magic);
    sink.u32(stitchCount);
    sink.u32(colors.size());
    for (double extent : {bounds.right(), -bounds.top(), bounds.left(), -bounds.bottom()})
        sink.u16(int(std::lround(extent)));
    sink.u32(commandOffset);
    sink.u32(commandOffset + commands.size());
    sink.u32(commandOffset + commands.size() + xSteps.size());
    sink.fill(8);
    sink.u16(0);
    for (int color : colors)
        sink.u16(color);
    sink.append(commands + xSteps + ySteps);
    return sink.bytes();
}

} // namespace DesignWriters
