#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/Steps.h"

#include <stdexcept>

using namespace Embroidery;

namespace DesignWriters {

namespace {

constexpr int HeaderSize = 512;
constexpr int LongestStep = 121;
constexpr int StitchRecord = 0x03;
constexpr int MoveRecord = 0x83;
constexpr int ColorRecord = 0xC3;
constexpr int EndRecord = 0xF3;

/** Which byte and bit stand for +weight; the next bit stands for -weight, or the
    one before where y is meant. */
struct Digit
{
    int weight;
    int byte;
    int xBit;
    int yBit;
};

constexpr Digit Digits[] = {{81, 2, 2, 4}, {27, 1, 2, 4}, {9, 0, 2, 4}, {3, 1, 0, 6}, {1, 0, 0, 6}};

/** Sets the balanced ternary digits of @p value, from the greatest weight down. */
void setDigits(int value, int Digit::*bit, int (&record)[3])
{
    for (const Digit &digit : Digits) {
        const int reach = (digit.weight - 1) / 2;
        if (value > reach) {
            record[digit.byte] |= 1 << (digit.*bit);
            value -= digit.weight;
        } else if (value < -reach) {
            record[digit.byte] |= 1 << (digit.*bit + 1);
            value += digit.weight;
        }
    }
}

void writeRecord(ByteSink &sink, int dx, int dy, int command)
{
    int record[3] = {0, 0, command};
    setDigits(dx, &Digit::xBit, record);
    setDigits(dy, &Digit::yBit, record);
    for (int byte : record)
        sink.u8(byte);
}

QByteArray header(const EmbPattern &pattern)
{
    QByteArray text = "LA:" + pattern.getName().toLatin1().left(16).leftJustified(16) + '\r';
    const QByteArray author = pattern.metadata(EmbPattern::PROP_AUTHOR, QString()).toLatin1();
    if (!author.isEmpty())
        text += "AU:" + author + '\r';
    for (const QSharedPointer<EmbThread> &thread : pattern.threadList()) {
        text += "TC:" + thread->getHexColor().toLatin1() + ',' +
                thread->getDescription().toLatin1() + ',' + thread->getCatalogNumber().toLatin1() +
                '\r';
    }
    text += '\x1a';
    if (text.size() > HeaderSize)
        throw std::length_error("too many threads for the header");
    return text.leftJustified(HeaderSize, ' ');
}

} // namespace

QByteArray writeDst(const EmbPattern &pattern)
{
    ByteSink sink;
    sink.append(header(pattern));
    for (const Step &step : relativeSteps(pattern, LongestStep)) {
        switch (step.command) {
        case StitchCommandStitch:
            writeRecord(sink, step.dx, step.dy, StitchRecord);
            break;
        case StitchCommandMove:
            writeRecord(sink, step.dx, step.dy, MoveRecord);
            break;
        case StitchCommandColorChange:
            writeRecord(sink, step.dx, step.dy, ColorRecord);
            break;
        default:
            break;
        }
    }
    writeRecord(sink, 0, 0, EndRecord);
    return sink.bytes();
}

} // namespace DesignWriters
