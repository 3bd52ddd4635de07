#include "catalogue/backups/GzipFormat.h"

#include "base/Error.h"

#include <libdeflate.h>
#include <memory>
#include <QtEndian>

namespace {

// The window waits for the first save of a day.
constexpr int FastCompression = 3;
constexpr quint32 MostBytes = 1 << 30;
constexpr int LeastSize = 18; // of head and tail
constexpr int SizeField = 4;  // the last bytes

using Compressor = std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)>;
using Decompressor =
    std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)>;

} // namespace

QByteArray GzipFormat::compressed(const QByteArray &bytes)
{
    const Compressor compressor(libdeflate_alloc_compressor(FastCompression),
                                &libdeflate_free_compressor);
    if (!compressor)
        throw OutOfMemoryError();
    const auto size = std::size_t(bytes.size());
    QByteArray result;
    result.resize(int(libdeflate_gzip_compress_bound(compressor.get(), size)));
    result.resize(int(libdeflate_gzip_compress(compressor.get(), bytes.constData(), size,
                                               result.data(), std::size_t(result.size()))));
    return result;
}

bool GzipFormat::isCompressed(const QByteArray &bytes)
{
    return bytes.startsWith("\x1f\x8b");
}

QByteArray GzipFormat::decompressed(const QByteArray &bytes)
{
    const Error damaged(tr("The compressed file is damaged."));
    if (!isCompressed(bytes) || bytes.size() < LeastSize)
        throw damaged;
    const auto size = qFromLittleEndian<quint32>(bytes.constEnd() - SizeField);
    if (size > MostBytes)
        throw damaged;
    const Decompressor decompressor(libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    if (!decompressor)
        throw OutOfMemoryError();
    QByteArray result(int(size), Qt::Uninitialized);
    std::size_t actual = 0;
    if (libdeflate_gzip_decompress(decompressor.get(), bytes.constData(), std::size_t(bytes.size()),
                                   result.data(), size, &actual) != LIBDEFLATE_SUCCESS ||
        actual != size)
        throw damaged;
    return result;
}
