#pragma once

#include <QByteArray>
#include <QVector>

namespace TestSupport {

/** Bits into bytes, the most significant first. */
class BitWriter
{
public:
    void put(int value, int bits);

    /** The bytes so far; the last one is filled up with zero bits. */
    QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    int m_free = 0;
};

/** A literal (code below 256), a match (code 253 + length) or the end (code 510). */
struct HusToken
{
    int code;
    /** Of a match: how far back it reaches, 1 for the byte just written. */
    int reach = 0;
};

enum class CodeShape {
    Huffman, //!< the best code for the frequencies
    Comb     //!< lengths 1, 2, 3… as long as they fit in 16 bits
};

struct HusOptions
{
    int codesPerBlock = 65536;
    CodeShape mainShape = CodeShape::Huffman;
    CodeShape smallShape = CodeShape::Huffman;
};

/** The tokens as a compressed stream; the end code is the caller's to give. */
QByteArray husEncode(const QVector<HusToken> &tokens, const HusOptions &options = {});

/** The tokens of the bytes: the longest matches within 1024 bytes, and the end. */
QVector<HusToken> husTokens(const QByteArray &bytes);

/** The bytes as a compressed stream. */
QByteArray husCompress(const QByteArray &bytes, const HusOptions &options = {});

} // namespace TestSupport
