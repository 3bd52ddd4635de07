#include "preview/render/PngEncoder.h"

#include <libdeflate.h>
#include <memory>
#include <new>
#include <QtEndian>

namespace {

constexpr int BytesPerPixel = 4;
constexpr char SubFilter = 1;
constexpr int FastestCompression = 1;
/** Of a chunk, ahead of its data: the length and the type. */
constexpr int ChunkHead = 8;

struct CompressorDeleter
{
    void operator()(libdeflate_compressor *compressor) const
    {
        libdeflate_free_compressor(compressor);
    }
};

void appendNumber(QByteArray &bytes, quint32 number)
{
    const quint32 bigEndian = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

/** Fills in the length of the chunk that begins at @p start, and appends its checksum. */
void finishChunk(QByteArray &bytes, int start)
{
    const int dataSize = bytes.size() - start - ChunkHead;
    qToBigEndian(quint32(dataSize), bytes.data() + start);
    const char *type = bytes.constData() + start + ChunkHead / 2;
    appendNumber(bytes, libdeflate_crc32(0, type, std::size_t(dataSize) + ChunkHead / 2));
}

int beginChunk(QByteArray &bytes, const char *type)
{
    const int start = bytes.size();
    appendNumber(bytes, 0);
    bytes.append(type);
    return start;
}

/** The difference of two pixels, channel by channel and modulo 256. */
quint32 difference(quint32 a, quint32 b)
{
    constexpr quint32 highBits = 0x80808080;
    return ((a | highBits) - (b & ~highBits)) ^ ((a ^ ~b) & highBits);
}

/**
 * The rows as the format has them: red, green, blue and alpha of each pixel less those of
 * the one to its left, and ahead of each row the number of that filter.
 */
QByteArray scanLines(const QImage &image)
{
    const int width = image.width(); // a call for each pixel otherwise
    QByteArray lines(image.height() * (width * BytesPerPixel + 1), Qt::Uninitialized);
    char *next = lines.data();
    for (int y = 0; y < image.height(); ++y) {
        const auto *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        *next++ = SubFilter;
        quint32 left = 0;
        for (int x = 0; x < width; ++x) {
            const quint32 pixel = pixels[x] << 8 | pixels[x] >> 24;
            qToBigEndian(difference(pixel, left), next);
            left = pixel;
            next += BytesPerPixel;
        }
    }
    return lines;
}

void appendCompressed(QByteArray &bytes, const QByteArray &data)
{
    // Kept: new memory for each picture has to be cleared by the system first.
    thread_local std::unique_ptr<libdeflate_compressor, CompressorDeleter> compressor;
    if (!compressor)
        compressor.reset(libdeflate_alloc_compressor(FastestCompression));
    if (!compressor)
        throw std::bad_alloc();
    const int start = bytes.size();
    const std::size_t input = std::size_t(data.size());
    const std::size_t room = libdeflate_zlib_compress_bound(compressor.get(), input);
    bytes.resize(start + int(room));
    const std::size_t size = libdeflate_zlib_compress(compressor.get(), data.constData(), input,
                                                      bytes.data() + start, room);
    bytes.resize(start + int(size));
}

} // namespace

QByteArray PngEncoder::encode(const QImage &image)
{
    QByteArray file = QByteArrayLiteral("\x89PNG\r\n\x1a\n");

    const int header = beginChunk(file, "IHDR");
    appendNumber(file, quint32(image.width()));
    appendNumber(file, quint32(image.height()));
    // 8 bits, colour with alpha, the one compression and filtering there is, not interlaced.
    file.append("\x08\x06\x00\x00\x00", 5);
    finishChunk(file, header);

    const int pixels = beginChunk(file, "IDAT");
    appendCompressed(file, scanLines(image));
    finishChunk(file, pixels);

    finishChunk(file, beginChunk(file, "IEND"));
    return file;
}
