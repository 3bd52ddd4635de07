#include "embroidery/PecReader.h"

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbThreadPec.h"

#include <QVector>

namespace Embroidery {

namespace {

constexpr int LongDelta = 0x80;
constexpr int TrimFlag = 0x20;
constexpr int JumpFlag = 0x10;

/** The 12-bit two's-complement value of a long delta. */
int longDelta(int high, int low)
{
    const int value = (high & 0x0F) << 8 | low;
    return value < 0x800 ? value : value - 0x1000;
}

/** The 7-bit two's-complement value of a short delta. */
int shortDelta(int byte)
{
    return byte < 0x40 ? byte : byte - 0x80;
}

int chartIndex(char color, int chartSize)
{
    return static_cast<unsigned char>(color) % chartSize;
}

} // namespace

PecReader::PecReader(const QString &name) : EmbReader(name) {}

void PecReader::read()
{
    skip(8);
    readPec();
}

void PecReader::readPec()
{
    skip(3);
    const QString label = readString(16).trimmed();
    if (!label.isEmpty())
        pattern().setMetadata(EmbPattern::PROP_NAME, label);
    skip(15);
    const int width = readInt8();
    const int height = readInt8();
    skip(12);
    const int changes = readInt8();
    QByteArray colors(changes + 1, 0);
    readFully(colors.data(), colors.size());
    map_pec_colors(colors.constData(), colors.size());
    skip(464 - changes);
    const int length = readInt24LE();
    const qint64 here = tell();
    skip(15);
    readPecStitches();
    // The length counts from the start of the second part of the block, which lies 5 bytes back.
    seek(static_cast<int>(length + here - 5));
    readPecGraphics(width * height, width, changes);
}

void PecReader::map_pec_colors(const char *colors, int count)
{
    const int threads = pattern().threadList().size();
    if (threads == 0)
        process_pec_colors(colors, count);
    else if (threads != count)
        process_pec_table(colors, count);
}

void PecReader::process_pec_colors(const char *colors, int count)
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadPec::getThreadSet();
    for (int i = 0; i < count; ++i)
        pattern().addThread(chart.at(chartIndex(colors[i], chart.size())));
}

void PecReader::process_pec_table(const char *colors, int count)
{
    const QList<QSharedPointer<EmbThread>> chart = EmbThreadPec::getThreadSet();
    QList<QSharedPointer<EmbThread>> available = pattern().threadList();
    QVector<QSharedPointer<EmbThread>> assigned(chart.size());
    QList<QSharedPointer<EmbThread>> result;
    for (int i = 0; i < count; ++i) {
        const int index = chartIndex(colors[i], chart.size());
        if (!assigned.at(index))
            assigned[index] = available.isEmpty() ? chart.at(index) : available.takeFirst();
        result.append(assigned.at(index));
    }
    pattern().setThreadList(result);
}

void PecReader::readPecStitches()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / 2));
    for (;;) {
        const int a = readInt8();
        int b = readInt8();
        if (a == 0xFF) {
            design.end();
            return;
        }
        if (a == 0xFE && b == 0xB0) {
            skip(1);
            design.color_change();
            continue;
        }
        int flags = 0;
        int x = 0;
        if (a & LongDelta) {
            x = longDelta(a, b);
            flags = a;
            b = readInt8();
        } else {
            x = shortDelta(a);
        }
        int y = 0;
        if (b & LongDelta) {
            y = longDelta(b, readInt8());
            flags |= b;
        } else {
            y = shortDelta(b);
        }
        if (flags & JumpFlag) {
            design.move(x, y);
        } else if (flags & TrimFlag) {
            design.trim();
            design.move(x, y);
        } else {
            design.stitch(x, y);
        }
    }
}

void PecReader::readPecGraphics(int size, int stride, int count)
{
    QByteArray buffer(size, 0);
    for (int i = 0; i < count; ++i) {
        if (readFully(buffer.data(), size) == size)
            continue;
        // Only an image that is cut off leaves a trace; whole ones are of no use.
        pattern().setMetadata(QStringLiteral("pec_graphic_%1").arg(i),
                              get_graphic_as_string(buffer, stride, '#', ' '));
        return;
    }
}

QString PecReader::get_graphic_as_string(const QByteArray &bytes, int stride, char on, char off)
{
    QByteArray text;
    for (int i = 0; i < bytes.size(); ++i) {
        if ((i + 1) % stride == 0)
            text.append('\n');
        char pixels[8];
        for (int bit = 0; bit < 8; ++bit)
            pixels[bit] = bytes.at(i) >> bit & 1 ? on : off;
        text.append(pixels, 8);
    }
    return QString::fromLatin1(text);
}

} // namespace Embroidery
