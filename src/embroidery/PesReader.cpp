#include "embroidery/PesReader.h"

#include "embroidery/EmbPattern.h"

namespace Embroidery {

namespace {

enum class Layout { Plain, Version4, Version5, Version6, BlockOnly };

struct Version
{
    const char *magic;
    const char *version;
    Layout layout;
};

constexpr Version Versions[] = {
    {"#PES0100", "10", Layout::Plain},     {"#PES0090", "9", Layout::Plain},
    {"#PES0080", "8", Layout::Plain},      {"#PES0070", "7", Layout::Plain},
    {"#PES0060", "6", Layout::Version6},   {"#PES0056", "5.6", Layout::Version5},
    {"#PES0055", "5.5", Layout::Version5}, {"#PES0050", "5", Layout::Version5},
    {"#PES0040", "4", Layout::Version4},   {"#PES0030", "3", Layout::Plain},
    {"#PES0022", "2.2", Layout::Plain},    {"#PES0020", "2", Layout::Plain},
    {"#PES0001", "1", Layout::Plain},      {"#PEC0001", "", Layout::BlockOnly},
};

constexpr Version UnknownVersion = {"", "", Layout::Plain};

Version versionOf(const QString &magic)
{
    for (const Version &version : Versions) {
        if (magic == QLatin1String(version.magic))
            return version;
    }
    return UnknownVersion;
}

} // namespace

PesReader::PesReader() : PecReader(QStringLiteral("pes")) {}

void PesReader::read()
{
    readPESHeader();
    readPec();
}

void PesReader::readPESHeader()
{
    const Version version = versionOf(readString(8));
    pattern().setMetadata(PROP_VERSION, QString::fromLatin1(version.version));
    switch (version.layout) {
    case Layout::Plain:
        readPESHeaderDefault();
        break;
    case Layout::Version4:
        readPESHeaderV4();
        break;
    case Layout::Version5:
        readPESHeaderV5();
        break;
    case Layout::Version6:
        readPESHeaderV6();
        break;
    case Layout::BlockOnly:
        break;
    }
}

void PesReader::readPESHeaderDefault()
{
    skipTo(readInt32LE());
}

void PesReader::readPESHeaderV4()
{
    const int offset = readInt32LE();
    skip(4);
    readDescriptions();
    skipTo(offset);
}

void PesReader::readPESHeaderV5()
{
    const int offset = readInt32LE();
    skip(4);
    readDescriptions();
    skip(24);
    skip(readInt8());
    skip(24);
    readThreads();
    seek(offset);
}

void PesReader::readPESHeaderV6()
{
    const int offset = readInt32LE();
    skip(4);
    readDescriptions();
    skip(36);
    const QString imageFile = readPrefixedString();
    if (!imageFile.isEmpty())
        pattern().setMetadata(PROP_IMAGE_FILE, imageFile);
    skip(24);
    readThreads();
    seek(offset);
}

void PesReader::skipTo(int offset)
{
    skip(static_cast<int>(offset - tell()));
}

void PesReader::readDescriptions()
{
    pattern().setName(readPrefixedString());
    pattern().setCategory(readPrefixedString());
    pattern().setAuthor(readPrefixedString());
    pattern().setKeywords(readPrefixedString());
    pattern().setComments(readPrefixedString());
}

void PesReader::readThreads()
{
    // Three counts of other records come first; their layout is unknown, so a
    // header that has any of them is read no further.
    for (int i = 0; i < 3; ++i) {
        if (readInt16LE() != 0)
            return;
    }
    const int count = readInt16LE();
    for (int i = 0; i < count; ++i)
        readThread();
}

void PesReader::readThread()
{
    const QString catalogNumber = readPrefixedString();
    const int red = readInt8();
    const int green = readInt8();
    const int blue = readInt8();
    skip(5);
    const QString description = readPrefixedString();
    const QString brand = readPrefixedString();
    const QString chart = readPrefixedString();
    pattern().addThread(QSharedPointer<EmbThread>::create(red, green, blue, description,
                                                          catalogNumber, brand, chart));
}

QString PesReader::readPrefixedString()
{
    return readString(readInt8());
}

} // namespace Embroidery
