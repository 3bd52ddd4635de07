#include "writers/HusCompressor.h"

#include "writers/BitSink.h"

#include <algorithm>

using DesignWriters::BitSink;
using DesignWriters::CodeShape;
using DesignWriters::HuffmanCode;

namespace HusCompressor {

namespace {

constexpr int MainSymbols = 511;
constexpr int SmallSymbols = 19;
constexpr int DistanceSymbols = 15;
constexpr int MatchBase = 253;
constexpr int ShortestMatch = 3;
constexpr int LongestMatch = 256;
constexpr int FarthestMatch = 1023;

/** The longest match for what stands at @p at, or one of length 0. */
void findMatch(const QByteArray &bytes, int at, int &bestLength, int &bestDistance)
{
    bestLength = 0;
    const int limit = std::min(LongestMatch, bytes.size() - at);
    for (int distance = 1; distance <= std::min(at, FarthestMatch); ++distance) {
        int length = 0;
        while (length < limit && bytes[at + length] == bytes[at + length - distance])
            ++length;
        if (length > bestLength) {
            bestLength = length;
            bestDistance = distance;
            if (length == limit)
                return;
        }
    }
}

QVector<Token> tokensOf(const QByteArray &bytes)
{
    QVector<Token> result;
    for (int at = 0; at < bytes.size();) {
        int length = 0;
        int distance = 0;
        findMatch(bytes, at, length, distance);
        if (length >= ShortestMatch) {
            result << Token{MatchBase + length, distance};
            at += length;
        } else {
            result << Token{static_cast<unsigned char>(bytes[at]), 0};
            ++at;
        }
    }
    return result << Token{EndSymbol, 0};
}

bool isMatch(const Token &token)
{
    return token.symbol > 255 && token.symbol != EndSymbol;
}

/** The number of bits of distance - 1, which is the distance's symbol. */
int distanceSymbol(int distance)
{
    int symbol = 0;
    for (int rest = distance - 1; rest > 0; rest >>= 1)
        ++symbol;
    return symbol;
}

int usedLength(const QVector<int> &lengths)
{
    int n = lengths.size();
    while (n > 0 && lengths[n - 1] == 0)
        --n;
    return n;
}

void putSmallLength(BitSink &sink, int length)
{
    if (length < 7) {
        sink.put(unsigned(length), 3);
        return;
    }
    sink.put(7, 3);
    for (int i = 7; i < length; ++i)
        sink.put(1, 1);
    sink.put(0, 1);
}

/** Writes the lengths of a small code. After @p special of them two bits tell how many zeros are
    left out; -1 for never. */
void putSmallCode(BitSink &sink, const HuffmanCode &code, int special)
{
    if (code.onlySymbol() >= 0) {
        sink.put(0, 5);
        sink.put(unsigned(code.onlySymbol()), 5);
        return;
    }
    const QVector<int> &lengths = code.lengths();
    const int n = usedLength(lengths);
    sink.put(unsigned(n), 5);
    for (int i = 0; i < n;) {
        putSmallLength(sink, lengths[i++]);
        if (i == special) {
            int zeros = 0;
            while (zeros < 3 && i + zeros < n && lengths[i + zeros] == 0)
                ++zeros;
            sink.put(unsigned(zeros), 2);
            i += zeros;
        }
    }
}

/** A symbol of the code that holds the main code's lengths, with bits of its own behind it. */
struct LengthToken
{
    int symbol;
    int extra;
    int extraBits;
};

QVector<LengthToken> lengthTokens(const QVector<int> &lengths)
{
    QVector<LengthToken> result;
    const int n = usedLength(lengths);
    for (int i = 0; i < n;) {
        if (lengths[i] > 0) {
            result << LengthToken{lengths[i++] + 2, 0, 0};
            continue;
        }
        int zeros = 0;
        while (i + zeros < n && lengths[i + zeros] == 0)
            ++zeros;
        i += zeros;
        if (zeros >= 20) {
            result << LengthToken{2, zeros - 20, 9};
            continue;
        }
        if (zeros == 19) {
            result << LengthToken{0, 0, 0};
            --zeros;
        }
        if (zeros >= 3) {
            result << LengthToken{1, zeros - 3, 4};
            continue;
        }
        result << QVector<LengthToken>(zeros, LengthToken{0, 0, 0});
    }
    return result;
}

void putMainCode(BitSink &sink, const HuffmanCode &code, CodeShape smallShape)
{
    const QVector<LengthToken> list = lengthTokens(code.lengths());
    QVector<int> frequencies(SmallSymbols, 0);
    for (const LengthToken &token : list)
        ++frequencies[token.symbol];
    const HuffmanCode small(frequencies, smallShape);
    putSmallCode(sink, small, 3);
    sink.put(unsigned(usedLength(code.lengths())), 9);
    if (code.onlySymbol() >= 0) {
        sink.put(unsigned(code.onlySymbol()), 9);
        return;
    }
    for (const LengthToken &token : list) {
        small.put(sink, token.symbol);
        sink.put(unsigned(token.extra), token.extraBits);
    }
}

void putBlock(BitSink &sink, const QVector<Token> &block, const Options &options)
{
    QVector<int> symbols(MainSymbols, 0);
    QVector<int> distances(DistanceSymbols, 0);
    for (const Token &token : block) {
        ++symbols[token.symbol];
        if (isMatch(token))
            ++distances[distanceSymbol(token.distance)];
    }
    const HuffmanCode mainCode(symbols, options.mainShape);
    const HuffmanCode distanceCode(distances, options.smallShape);
    sink.put(unsigned(block.size()), 16);
    putMainCode(sink, mainCode, options.smallShape);
    putSmallCode(sink, distanceCode, -1);
    for (const Token &token : block) {
        mainCode.put(sink, token.symbol);
        if (!isMatch(token))
            continue;
        const int symbol = distanceSymbol(token.distance);
        distanceCode.put(sink, symbol);
        if (symbol > 1)
            sink.put(unsigned(token.distance - 1) - (1u << (symbol - 1)), symbol - 1);
    }
}

} // namespace

QByteArray encode(const QVector<Token> &tokens, const Options &options)
{
    BitSink sink;
    for (int from = 0; from < tokens.size(); from += options.tokensPerBlock)
        putBlock(sink, tokens.mid(from, options.tokensPerBlock), options);
    return sink.bytes();
}

QByteArray compress(const QByteArray &bytes, const Options &options)
{
    return encode(tokensOf(bytes), options);
}

} // namespace HusCompressor
