#include "embroidery/EmbThreadPec.h"
#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/NearestThread.h"
#include "writers/PecBlock.h"
#include "writers/Steps.h"

#include <algorithm>
#include <stdexcept>

using namespace Embroidery;

namespace DesignWriters {

namespace {

constexpr int LongestStep = 2047;
constexpr int LabelLength = 16;
constexpr int MostColorChanges = 254;
constexpr int ThumbnailStride = 6;
constexpr int ThumbnailWidth = ThumbnailStride * 8;
constexpr int ThumbnailHeight = 38;
constexpr int MoveFlag = 0x10;
constexpr int TrimFlag = 0x20;
/** Chart entries that are colours: 0 stands for unknown and the last for applique. */
constexpr int FirstColor = 1;
constexpr int LastColor = 63;

void writeDelta(ByteSink &sink, int delta, int flags)
{
    if (flags == 0 && delta >= -64 && delta <= 63) {
        sink.u8(delta & 0x7F);
        return;
    }
    sink.u8(0x80 | flags | ((delta >> 8) & 0x0F));
    sink.u8(delta);
}

QByteArray stitches(const QVector<Step> &steps)
{
    ByteSink sink;
    int flag = MoveFlag;
    for (const Step &step : steps) {
        switch (step.command) {
        case StitchCommandStitch:
            writeDelta(sink, step.dx, 0);
            writeDelta(sink, step.dy, 0);
            break;
        case StitchCommandMove:
            // The trim has no record of its own: the move behind it carries it.
            writeDelta(sink, step.dx, flag);
            writeDelta(sink, step.dy, flag);
            flag = MoveFlag;
            break;
        case StitchCommandTrim:
            flag = TrimFlag;
            break;
        case StitchCommandColorChange:
            sink.append(QByteArray::fromRawData("\xFE\xB0\x01", 3));
            flag = MoveFlag;
            break;
        default:
            break;
        }
    }
    sink.append(QByteArray::fromRawData("\xFF\x00", 2));
    return sink.bytes();
}

/** A small picture of the whole design, one bit for a pixel. */
QByteArray thumbnail(const EmbPattern &pattern, const QVector<Step> &steps)
{
    QByteArray bits(ThumbnailStride * ThumbnailHeight, '\0');
    const QRectF bounds = pattern.boundingRect();
    const double scale = std::min((ThumbnailWidth - 5) / std::max(1.0, bounds.width()),
                                  (ThumbnailHeight - 5) / std::max(1.0, bounds.height()));
    QPointF position;
    for (const Step &step : steps) {
        position += QPointF(step.dx, step.dy);
        if (step.command != StitchCommandStitch)
            continue;
        const QPointF at = (position - bounds.center()) * scale;
        const int x = ThumbnailWidth / 2 + qRound(at.x());
        const int y = ThumbnailHeight / 2 + qRound(at.y());
        const int index = y * ThumbnailStride + x / 8;
        bits[index] = char(bits[index] | (1 << (x % 8)));
    }
    return bits;
}

} // namespace

QByteArray pecBlock(const EmbPattern &pattern)
{
    const QVector<Step> steps = relativeSteps(pattern, LongestStep);
    const int changes = colorChanges(steps);
    if (changes > MostColorChanges)
        throw std::length_error("too many colour changes");
    QVector<int> colors =
        nearestIndices(pattern.threadList(), EmbThreadPec::getThreadSet(), FirstColor, LastColor);
    colors.resize(changes + 1);
    const QByteArray stitchBytes = stitches(steps);

    ByteSink sink;
    sink.fill(3, ' ');
    sink.append(pattern.getName().toUtf8().left(LabelLength).leftJustified(LabelLength, ' '));
    sink.fill(15, ' ');
    sink.u8(ThumbnailStride);
    sink.u8(ThumbnailHeight);
    sink.fill(12, ' ');
    sink.u8(changes);
    for (int color : colors)
        sink.u8(color);
    sink.fill(464 - changes);
    sink.u24(20 + stitchBytes.size());
    sink.fill(15);
    sink.append(stitchBytes);
    for (int i = 0; i <= changes; ++i)
        sink.append(thumbnail(pattern, steps));
    return sink.bytes();
}

QByteArray writePec(const EmbPattern &pattern)
{
    return "#PEC0001" + pecBlock(pattern);
}

} // namespace DesignWriters
