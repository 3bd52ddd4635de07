#include "embroidery/DstReader.h"

#include "embroidery/EmbPattern.h"

#include <QColor>
#include <QRegularExpression>
#include <QStringList>

#include <array>

namespace Embroidery {

namespace {

constexpr int HeaderSize = 512;
constexpr int RecordSize = 3;
constexpr int NameLength = 16;

/** A digit of the balanced ternary displacements: its byte, and the bits of its two senses. */
struct Digit
{
    int weight;
    std::size_t byte;
    int plus;
    int minus;
};

constexpr Digit XDigits[] = {
    {1, 0, 0, 1}, {3, 1, 0, 1}, {9, 0, 2, 3}, {27, 1, 2, 3}, {81, 2, 2, 3}};
constexpr Digit YDigits[] = {
    {1, 0, 6, 7}, {3, 1, 6, 7}, {9, 0, 4, 5}, {27, 1, 4, 5}, {81, 2, 4, 5}};

/** What each value of each byte of a record adds to the displacement. */
using Parts = std::array<std::array<int, 256>, RecordSize>;

constexpr Parts partsOf(const Digit (&digits)[5])
{
    Parts parts{};
    for (const Digit &digit : digits) {
        for (std::size_t value = 0; value < 256; ++value) {
            const char byte = static_cast<char>(value);
            const int sense =
                DstReader::getbit(byte, digit.plus) - DstReader::getbit(byte, digit.minus);
            parts[digit.byte][value] += sense * digit.weight;
        }
    }
    return parts;
}

constexpr Parts XParts = partsOf(XDigits);
constexpr Parts YParts = partsOf(YDigits);

int partOf(const Parts &parts, std::size_t index, char byte)
{
    return parts[index][static_cast<unsigned char>(byte)];
}

} // namespace

DstReader::DstReader() : EmbReader(QStringLiteral("dst")) {}

void DstReader::read()
{
    dstReadHeader();
    dstReadStitches();
}

void DstReader::dstReadHeader()
{
    std::array<char, HeaderSize + 1> header{};
    readFully(header.data(), HeaderSize);
    parseDataStichHeader(header.data());
}

void DstReader::parseDataStichHeader(const char *header)
{
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]"));
    const QStringList lines = QString::fromUtf8(header).split(lineEnd, Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.length() >= 3)
            processHeaderInfo(line.left(2), line.mid(3).trimmed());
    }
}

void DstReader::processHeaderInfo(const QString &tag, const QString &value)
{
    if (tag == QLatin1String("LA"))
        pattern().setName(value.left(NameLength).trimmed());
    else if (tag == QLatin1String("AU"))
        pattern().setAuthor(value);
    else if (tag == QLatin1String("TC"))
        addThreadRecord(value);
}

void DstReader::addThreadRecord(const QString &value)
{
    const QStringList parts = value.split(QLatin1Char(','));
    if (parts.size() != 3)
        return;
    const QString &name = parts.at(0);
    const QColor color = QColor::isValidColor(name) ? QColor(name) : QColor(Qt::black);
    pattern().addThread(QSharedPointer<EmbThread>::create(color.rgb(), parts.at(1), parts.at(2),
                                                          QString(), QString()));
}

int DstReader::decodedx(char b0, char b1, char b2)
{
    return partOf(XParts, 0, b0) + partOf(XParts, 1, b1) + partOf(XParts, 2, b2);
}

int DstReader::decodedy(char b0, char b1, char b2)
{
    return partOf(YParts, 0, b0) + partOf(YParts, 1, b1) + partOf(YParts, 2, b2);
}

void DstReader::dstReadStitches()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / RecordSize));
    bool sequinMode = false;
    std::array<char, RecordSize> b{};
    // Records behind the end record are read all the same.
    while (readFully(b.data(), RecordSize) == RecordSize) {
        const int dx = decodedx(b[0], b[1], b[2]);
        const int dy = decodedy(b[0], b[1], b[2]);
        const int flags = static_cast<unsigned char>(b[2]);
        if ((flags & 0xF3) == 0xF3) {
            design.end(dx, dy);
        } else if ((flags & 0xC3) == 0xC3) {
            design.color_change(dx, dy);
        } else if ((flags & 0x43) == 0x43) {
            design.sequin_mode(dx, dy);
            sequinMode = !sequinMode;
        } else if ((flags & 0x83) == 0x83) {
            if (sequinMode)
                design.sequin_eject(dx, dy);
            else
                design.move(dx, dy);
        } else {
            design.stitch(dx, dy);
        }
    }
}

} // namespace Embroidery
