#include "embroidery/HusDecompressor.h"

#include "embroidery/IOException.h"

#include <algorithm>

namespace {

constexpr int FirstMatchCode = 256;
constexpr int EndCode = 510;
constexpr int ShortestMatch = 3;
/** The bytes that the bit buffer and the current byte can be ahead of the decoding. */
constexpr int BytesAhead = 3;

[[noreturn]] void failCorrupt()
{
    throw Embroidery::IOException(QStringLiteral("Error decompressing file"));
}

} // namespace

HusDecompressor::HusDecompressor(QByteArray *input, QByteArray *output, long size, int bits)
    : m_windowSize(static_cast<short>(1 << bits)),
      m_windowMask(static_cast<short>(m_windowSize - 1)),
      m_window(std::make_unique<unsigned char[]>(static_cast<std::size_t>(m_windowSize) + 2)),
      m_remaining(size), m_input(input, QIODevice::ReadOnly), m_output(output, QIODevice::WriteOnly)
{
}

void HusDecompressor::decompress()
{
    init();
    for (;;) {
        const int code = getNextValueToProcess();
        if (code == EndCode)
            break;
        if (code < FirstMatchCode)
            putByte(static_cast<unsigned char>(code));
        else
            copyMatch(code - FirstMatchCode + ShortestMatch, decodeRelativeOffsetFromTree());
    }
    flushBuffer();
}

void HusDecompressor::init()
{
    fillShortBuffer(0);
    initShortBuffer256(0);
    m_inputBuffer.fill(0);
    m_left.fill(0);
    m_right.fill(0);
    m_blockSize = 0;
    m_bitBuffer = 0;
    m_bitCount = 0;
    m_subBuffer = 0;
    m_inputCount = 0;
    readFromStream(16);
    m_outputCount = 0;
}

int HusDecompressor::getNextValueToProcess()
{
    if (m_blockSize == 0)
        beginBlock();
    // A stored size of 0 wraps around to a block of 65536 codes.
    --m_blockSize;
    const unsigned short entry = m_codeTable[m_bitBuffer >> (16 - CodeTableBits)];
    const int code = walkTree(static_cast<short>(entry), 1 << (15 - CodeTableBits), CodeCount - 1);
    readFromStream(m_codeLengths[static_cast<std::size_t>(code)]);
    return code;
}

void HusDecompressor::beginBlock()
{
    if (m_staleBytes > BytesAhead && ++m_staleBlocks > MaximumStaleBlocks)
        failCorrupt();
    m_blockSize = static_cast<unsigned short>(readBits(16));
    loadBuffers(LengthCodeCount, 5, 3);
    anotherInterestingTreeRoutine();
    loadBuffers(DistanceCodeCount, 5, -1);
}

int HusDecompressor::decodeRelativeOffsetFromTree()
{
    const unsigned short entry = m_smallTable[m_bitBuffer >> (16 - SmallTableBits)];
    const int code =
        walkTree(static_cast<short>(entry), 1 << (15 - SmallTableBits), DistanceCodeCount - 1);
    readFromStream(m_smallLengths[static_cast<std::size_t>(code)]);
    if (code == 0)
        return 0;
    return (1 << (code - 1)) + readBits(code - 1);
}

void HusDecompressor::copyMatch(int length, int distance)
{
    int position = m_outputCount - distance - 1;
    for (int i = 0; i < length; ++i)
        putByte(getByteFromOutputBufferWithWrapAround(position++));
}

void HusDecompressor::readFromStream(int n)
{
    int bits = m_bitBuffer;
    while (n > m_bitCount) {
        n -= m_bitCount;
        bits = bits << m_bitCount | m_subBuffer >> (8 - m_bitCount);
        m_subBuffer = nextByte();
        m_bitCount = 8;
    }
    bits = bits << n | m_subBuffer >> (8 - n);
    m_subBuffer = static_cast<unsigned char>(m_subBuffer << n);
    m_bitCount = static_cast<short>(m_bitCount - n);
    m_bitBuffer = static_cast<unsigned short>(bits);
}

int HusDecompressor::readBits(int n)
{
    const int value = m_bitBuffer >> (16 - n);
    readFromStream(n);
    return value;
}

unsigned char HusDecompressor::nextByte()
{
    if (m_inputCount < 1)
        refillInput();
    --m_inputCount;
    return static_cast<unsigned char>(m_inputBuffer[static_cast<std::size_t>(m_inputPointer++)]);
}

void HusDecompressor::refillInput()
{
    // At the end nothing comes, and the byte at the start of the buffer is taken again.
    const qint64 capacity = static_cast<qint64>(m_inputBuffer.size());
    const bool last = m_remaining < capacity;
    const qint64 count = m_input.ReadBuffer(m_inputBuffer.data(), last ? m_remaining : capacity);
    if (last)
        m_remaining -= static_cast<long>(count);
    if (count == 0)
        ++m_staleBytes;
    m_inputCount = static_cast<short>(count);
    m_inputPointer = 0;
}

void HusDecompressor::loadBuffers(short count, short bits, short special)
{
    const int n = readBits(bits);
    std::fill_n(m_smallLengths.begin(), count, 0);
    if (n == 0) {
        initShortBuffer256(static_cast<short>(readBits(bits)));
        return;
    }
    if (n > count)
        failCorrupt();
    for (int i = 0; i < n;) {
        m_smallLengths[static_cast<std::size_t>(i++)] =
            static_cast<unsigned char>(readCodeLength());
        if (i == special)
            i += readBits(2);
    }
    initTrees(count, m_smallLengths.data(), SmallTableBits, m_smallTable.data(),
              static_cast<unsigned short>(m_smallTable.size()));
}

int HusDecompressor::readCodeLength()
{
    int length = m_bitBuffer >> 13;
    if (length == 7) {
        for (int bit = 1 << 12; m_bitBuffer & bit; bit >>= 1)
            ++length;
    }
    if (length > LongestCode)
        failCorrupt();
    readFromStream(length < 7 ? 3 : length - 3);
    return length;
}

void HusDecompressor::anotherInterestingTreeRoutine()
{
    const int n = readBits(9);
    initUCharBufferBigWith0();
    if (n == 0) {
        fillShortBuffer(static_cast<short>(readBits(9)));
        return;
    }
    for (int i = 0; i < n;) {
        const unsigned short entry = m_smallTable[m_bitBuffer >> (16 - SmallTableBits)];
        const int code =
            walkTree(static_cast<short>(entry), 1 << (15 - SmallTableBits), LengthCodeCount - 1);
        readFromStream(m_smallLengths[static_cast<std::size_t>(code)]);
        if (code > 2)
            m_codeLengths[static_cast<std::size_t>(i++)] = static_cast<unsigned char>(code - 2);
        else
            i += readRunLength(code);
        if (i > CodeCount)
            failCorrupt();
    }
    initTrees(CodeCount, m_codeLengths.data(), CodeTableBits, m_codeTable.data(),
              static_cast<unsigned short>(m_codeTable.size()));
}

/** The number of zero lengths that a code of 0, 1 or 2 stands for. */
int HusDecompressor::readRunLength(int code)
{
    if (code == 0)
        return 1;
    return code == 1 ? readBits(4) + 3 : readBits(9) + 20;
}

void HusDecompressor::initTrees(int count, const unsigned char *lengths, int tableBits,
                                unsigned short *table, unsigned short tableSize)
{
    // Starts are 16 bits wide: those of a complete code wrap around to 0 at the end.
    std::array<unsigned short, LongestCode + 1> frequency{};
    std::array<unsigned short, LongestCode + 2> start{};
    std::array<unsigned short, LongestCode + 1> weight{};
    for (int symbol = 0; symbol < count; ++symbol)
        ++frequency[lengths[symbol]];
    for (std::size_t k = 1; k <= LongestCode; ++k)
        start[k + 1] = static_cast<unsigned short>(start[k] + (frequency[k] << (LongestCode - k)));
    if (start[LongestCode + 1] != 0)
        failCorrupt();

    const int shift = 16 - tableBits;
    for (int k = 1; k <= LongestCode; ++k) {
        const auto length = static_cast<std::size_t>(k);
        const int bits = k <= tableBits ? tableBits : LongestCode;
        weight[length] = static_cast<unsigned short>(1 << (bits - k));
        if (k <= tableBits)
            start[length] = static_cast<unsigned short>(start[length] >> shift);
    }
    const int used = start[static_cast<std::size_t>(tableBits) + 1] >> shift;
    if (used != 0)
        std::fill(table + used, table + (1 << tableBits), static_cast<unsigned short>(0));

    int available = count;
    const auto mask = static_cast<unsigned short>(1 << (15 - tableBits));
    for (int symbol = 0; symbol < count; ++symbol) {
        const int length = lengths[symbol];
        if (length == 0)
            continue;
        unsigned short &first = start[static_cast<std::size_t>(length)];
        const auto next =
            static_cast<unsigned short>(first + weight[static_cast<std::size_t>(length)]);
        if (length > tableBits) {
            *growBranch(table + (first >> shift), first, mask, length - tableBits, available) =
                static_cast<unsigned short>(symbol);
        } else {
            if (next > tableSize)
                throw Embroidery::IOException(QStringLiteral("Failed to decompress file."));
            std::fill(table + first, table + next, static_cast<unsigned short>(symbol));
        }
        first = next;
    }
}

/** The place below @p entry that @p depth further bits of @p code lead to, with its nodes made. */
unsigned short *HusDecompressor::growBranch(unsigned short *entry, unsigned short code,
                                            unsigned short mask, int depth, int &available)
{
    for (; depth > 0; --depth) {
        if (*entry == 0) {
            if (available >= NodeCount)
                failCorrupt();
            m_left[static_cast<std::size_t>(available)] = 0;
            m_right[static_cast<std::size_t>(available)] = 0;
            *entry = static_cast<unsigned short>(available++);
        }
        entry = code & mask ? &m_right[*entry] : &m_left[*entry];
        code = static_cast<unsigned short>(code << 1);
    }
    return entry;
}

int HusDecompressor::walkTree(short node, unsigned short mask, short limit) const
{
    int steps = 0;
    while (node > limit) {
        // More steps than nodes and bits: the way goes round in nodes of an earlier block.
        if (++steps > NodeCount + LongestCode)
            failCorrupt();
        const auto index = static_cast<std::size_t>(node);
        node = static_cast<short>(m_bitBuffer & mask ? m_right[index] : m_left[index]);
        mask = static_cast<unsigned short>(mask >> 1);
    }
    return node;
}

void HusDecompressor::putByte(unsigned char byte)
{
    m_window[static_cast<std::size_t>(m_outputCount++)] = byte;
    if (m_outputCount == m_windowSize)
        flushBuffer();
}

void HusDecompressor::flushBuffer()
{
    m_written += m_outputCount;
    if (m_written > MaximumOutputSize)
        failCorrupt();
    m_output.WriteBuffer(reinterpret_cast<const char *>(m_window.get()), m_outputCount);
    m_outputCount = 0;
}

unsigned char HusDecompressor::getByteFromOutputBufferWithWrapAround(int position) const
{
    return m_window[static_cast<std::size_t>(position & m_windowMask)];
}

void HusDecompressor::initShortBuffer256(short value)
{
    m_smallTable.fill(static_cast<unsigned short>(value));
}

void HusDecompressor::fillShortBuffer(short value)
{
    m_codeTable.fill(static_cast<unsigned short>(value));
}

void HusDecompressor::initUCharBufferBigWith0()
{
    m_codeLengths.fill(0);
}
