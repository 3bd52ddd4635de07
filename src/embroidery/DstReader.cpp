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

int DstReader::getbit(char byte, int n)
{
    return (static_cast<unsigned char>(byte) >> n) & 1;
}

int DstReader::decodedx(char b0, char b1, char b2)
{
    return (getbit(b0, 0) - getbit(b0, 1)) + 3 * (getbit(b1, 0) - getbit(b1, 1)) +
           9 * (getbit(b0, 2) - getbit(b0, 3)) + 27 * (getbit(b1, 2) - getbit(b1, 3)) +
           81 * (getbit(b2, 2) - getbit(b2, 3));
}

int DstReader::decodedy(char b0, char b1, char b2)
{
    return (getbit(b0, 6) - getbit(b0, 7)) + 3 * (getbit(b1, 6) - getbit(b1, 7)) +
           9 * (getbit(b0, 4) - getbit(b0, 5)) + 27 * (getbit(b1, 4) - getbit(b1, 5)) +
           81 * (getbit(b2, 4) - getbit(b2, 5));
}

void DstReader::dstReadStitches()
{
    EmbPattern &design = pattern();
    design.reserve(static_cast<int>(size() / RecordSize));
    bool sequinMode = false;
    std::array<char, RecordSize> b{};
    // Records behind the end record are read all the same.
    while (readFully(b.data(), RecordSize) == RecordSize) {
        const auto dx = static_cast<float>(decodedx(b[0], b[1], b[2]));
        const auto dy = static_cast<float>(decodedy(b[0], b[1], b[2]));
        const int flags = b[2];
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
