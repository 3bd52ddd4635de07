#include "embroidery/HusReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThreadHus.h"
#include "embroidery/HusDecompressor.h"
#include "embroidery/IOException.h"

#include <limits>

namespace Embroidery {

namespace {

constexpr int WindowBits = 10;
constexpr int ExtentCount = 4;
constexpr int TextSize = 8;

constexpr int StitchCommandByte = 0x80;
constexpr int MoveCommandByte = 0x81;
constexpr int ColorChangeCommandByte = 0x84;
constexpr int EndCommandByte = 0x90;

/** The byte of stitch @p i, or @p missing if the stream is too short. */
int byteAt(const QByteArray &stream, int i, int missing)
{
    return i < stream.size() ? static_cast<unsigned char>(stream.at(i)) : missing;
}

} // namespace

HusReader::HusReader() : EmbReader(QStringLiteral("hus")) {}

void HusReader::read()
{
    readInt32LE();
    const int stitchCount = readInt32LE();
    const int colorCount = readInt32LE();
    for (int i = 0; i < ExtentCount; ++i)
        readInt16LE();
    const qint64 commandsOffset = readInt32LE();
    const qint64 xOffset = readInt32LE();
    const qint64 yOffset = readInt32LE();
    readData(TextSize);
    readInt16LE();
    readPalette(colorCount);

    QByteArray commands = readStream(xOffset - commandsOffset);
    QByteArray x = readStream(yOffset - xOffset);
    QByteArray y = readStream(size() - yOffset);
    Streams streams;
    streams.commands = husDecompressData(&commands, commands.size(), stitchCount);
    streams.x = husDecompressData(&x, x.size(), stitchCount);
    streams.y = husDecompressData(&y, y.size(), stitchCount);
    if (stitchCount > MaximumStitchCount)
        throw IOException(QStringLiteral("Design has too many stitches"));
    addStitches(streams, stitchCount);
}

void HusReader::readPalette(int count)
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadHus::getThreadSet();
    for (int i = 0; i < count; ++i)
        pattern().addThread(chart.at(readInt16LE() % chart.size()));
}

/** Reads the next stream; a length that no integer holds is past the end of any file. */
QByteArray HusReader::readStream(qint64 length)
{
    return readData(
        static_cast<int>(qBound(qint64(-1), length, qint64(std::numeric_limits<int>::max()))));
}

QByteArray HusReader::husDecompressData(QByteArray *input, int size, int unused)
{
    Q_UNUSED(unused)
    QByteArray output;
    HusDecompressor(input, &output, size, WindowBits).decompress();
    return output;
}

void HusReader::addStitches(const Streams &streams, int count)
{
    EmbPattern &design = pattern();
    design.reserve(qMax(0, count) + 1);
    for (int i = 0; i < count; ++i) {
        const int dx = signed8(byteAt(streams.x, i, 0));
        const int dy = -signed8(byteAt(streams.y, i, 0));
        switch (byteAt(streams.commands, i, StitchCommandByte)) {
        case MoveCommandByte:
            design.move(dx, dy);
            break;
        case ColorChangeCommandByte:
            design.color_change(dx, dy);
            break;
        case EndCommandByte:
            design.end(dx, dy);
            break;
        default:
            design.stitch(dx, dy);
            break;
        }
    }
    design.end();
}

} // namespace Embroidery
