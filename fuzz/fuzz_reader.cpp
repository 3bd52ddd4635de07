// Feeds any bytes to the reader of one format, FUZZ_FORMAT. A read must end with
// a design or an IOException; whatever else happens, the sanitizers report.

#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace Embroidery;

namespace {

/** Larger designs are read but not cut into lines, which would only take time. */
constexpr int LargestDrawnDesign = 100000;

void check(bool holds)
{
    if (!holds)
        std::abort();
}

void exercise(EmbPattern &pattern)
{
    check(pattern.threadList().size() >= pattern.getThreadCount());
    pattern.boundingRect();
    if (pattern.size() > LargestDrawnDesign)
        return;
    for (const StitchBlock &block : pattern.asStitchBlock())
        check(block.thread && block.points.size() > 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Not a copy: a read past the last byte must be one past the fuzzer's own buffer.
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    try {
        exercise(*EmbroideryIO::readByteArray(QStringLiteral("design." FUZZ_FORMAT), bytes));
    } catch (const IOException &) {
        return 0;
    }
    return 0;
}
