#pragma once

#include "embroidery/QByteArrayWrapper.h"

#include <array>
#include <memory>

/**
 * Undoes the compression of the HUS format: a sliding window with static
 * Huffman codes per block. One object serves one stream.
 *
 * How it works: the stream is a row of blocks, each with a count of codes and three
 * tables of code lengths ahead of them. A code below 256 is a byte; one above is a match,
 * a length, and a second code tells how far back in the window it begins; 510 ends the
 * stream. Names that the members go by, and the idea behind each:
 *
 * - `m_bitBuffer`: the next 16 bits of the stream; `m_subBuffer` and `m_bitCount` are what
 *   is left of the byte behind them; `readFromStream` moves on, `readBits` gives and moves on
 * - `m_codeTable`: indexed by the next 12 bits, gives the symbol of a byte or match length,
 *   or, for longer codes, a node of the tree in `m_left` and `m_right`; `m_codeLengths` has
 *   the length in bits of each symbol's code
 * - `m_smallTable`, `m_smallLengths`: the same by 8 bits, first for the code in which the
 *   lengths of the big one are written, then for distances
 * - `loadBuffers`: reads the lengths of a small code; `special` is the place behind which
 *   up to three lengths are left out
 * - `anotherInterestingTreeRoutine`: reads the lengths of the big code, in the small one
 * - `initTrees`: makes table and tree of canonical codes from their lengths; `walkTree` goes
 *   down the tree by the bits behind those of the table, until it stands on a symbol
 * - `getNextValueToProcess`: the next byte or match length; `decodeRelativeOffsetFromTree`:
 *   the distance that follows a length
 *
 * A stream that is cut off is not noticed as such: decoding goes on over the
 * bytes that the last read left in the input buffer until some rule stops it.
 * Any failure is an Embroidery::IOException.
 */
class HusDecompressor
{
public:
    /**
     * The most that one stream may yield, in bytes. A stream has no stored
     * length and may repeat itself without consuming a bit, so something must
     * bound it; a design has one byte for each stitch.
     */
    static constexpr qint64 MaximumOutputSize = 32 * Q_INT64_C(1024) * 1024;

    /**
     * The most blocks that may begin behind the end of the input. What is read
     * there is one byte over and over, so a block is met again after at most
     * eight, and what has not ended by then never does.
     */
    static constexpr int MaximumStaleBlocks = 8;

    /**
     * @p size is the length of @p input in bytes and @p bits the binary logarithm
     * of the window's size. Both arrays stay the caller's.
     */
    HusDecompressor(QByteArray *input, QByteArray *output, long size, int bits);

    /** Decodes the whole stream into the output. */
    void decompress();

private:
    static constexpr int CodeCount = 511;
    static constexpr int LengthCodeCount = 19;
    static constexpr int DistanceCodeCount = 15;
    static constexpr int NodeCount = 1021;
    static constexpr int CodeTableBits = 12;
    static constexpr int SmallTableBits = 8;
    static constexpr int LongestCode = 16;

    void init();
    int getNextValueToProcess();
    void beginBlock();
    int decodeRelativeOffsetFromTree();
    void copyMatch(int length, int distance);

    void readFromStream(int n);
    int readBits(int n);
    unsigned char nextByte();
    void refillInput();

    void loadBuffers(short count, short bits, short special);
    int readCodeLength();
    void anotherInterestingTreeRoutine();
    int readRunLength(int code);
    void initTrees(int count, const unsigned char *lengths, int tableBits, unsigned short *table,
                   unsigned short tableSize);
    unsigned short *growBranch(unsigned short *entry, unsigned short code, unsigned short mask,
                               int depth, int &available);
    int walkTree(short node, unsigned short mask, short limit) const;

    void putByte(unsigned char byte);
    void flushBuffer();
    unsigned char getByteFromOutputBufferWithWrapAround(int position) const;

    void initShortBuffer256(short value);
    void fillShortBuffer(short value);
    void initUCharBufferBigWith0();

    short m_windowSize;
    short m_windowMask;
    std::unique_ptr<unsigned char[]> m_window;
    std::array<unsigned short, 1 << CodeTableBits> m_codeTable{};
    std::array<unsigned short, 1 << SmallTableBits> m_smallTable{};
    std::array<char, 512> m_inputBuffer{};
    // The nodes of both trees.
    std::array<unsigned short, NodeCount> m_left{};
    std::array<unsigned short, NodeCount> m_right{};
    std::array<unsigned char, CodeCount> m_codeLengths{};
    std::array<unsigned char, LengthCodeCount> m_smallLengths{};
    unsigned short m_blockSize = 0;
    unsigned short m_bitBuffer = 0;
    short m_bitCount = 0;
    unsigned char m_subBuffer = 0;
    short m_inputCount = 0;
    int m_inputPointer = 0;
    long m_remaining;
    QByteArrayWrapper m_input;
    QByteArrayWrapper m_output;
    int m_outputCount = 0;
    qint64 m_written = 0;
    qint64 m_staleBytes = 0;
    int m_staleBlocks = 0;
};
