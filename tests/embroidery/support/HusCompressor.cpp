#include "embroidery/support/HusCompressor.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace TestSupport {

namespace {

using Counts = QVector<int>;

constexpr int LongestCode = 16;
constexpr int WindowSize = 1024;
constexpr int LongestMatch = 256;
constexpr int ShortestMatch = 3;
constexpr int EndCode = 510;

QVector<int> usedSymbols(const Counts &counts)
{
    QVector<int> used;
    for (int symbol = 0; symbol < counts.size(); ++symbol) {
        if (counts[symbol] > 0)
            used.append(symbol);
    }
    return used;
}

/** The depth of each symbol's leaf: join the two rarest groups until one is left. */
QVector<int> huffmanLengths(const Counts &counts)
{
    QVector<std::pair<qint64, QVector<int>>> groups;
    for (const int symbol : usedSymbols(counts))
        groups.append({counts[symbol], {symbol}});
    QVector<int> lengths(counts.size(), 0);
    while (groups.size() > 1) {
        std::stable_sort(groups.begin(), groups.end(),
                         [](const auto &a, const auto &b) { return a.first > b.first; });
        const auto a = groups.takeLast();
        const auto b = groups.takeLast();
        const QVector<int> symbols = a.second + b.second;
        for (const int symbol : symbols)
            ++lengths[symbol];
        groups.append({a.first + b.first, symbols});
    }
    if (*std::max_element(lengths.cbegin(), lengths.cend()) <= LongestCode)
        return lengths;
    Counts flatter = counts;
    for (int &count : flatter)
        count = (count + 1) / 2;
    return huffmanLengths(flatter);
}

QVector<int> codeLengths(const Counts &counts, CodeShape shape)
{
    QVector<int> used = usedSymbols(counts);
    if (shape == CodeShape::Huffman || used.size() > LongestCode + 1)
        return huffmanLengths(counts);
    std::stable_sort(used.begin(), used.end(), [&](int a, int b) { return counts[a] > counts[b]; });
    QVector<int> lengths(counts.size(), 0);
    for (int i = 0; i < used.size(); ++i)
        lengths[used[i]] = std::min(i + 1, used.size() - 1);
    return lengths;
}

/** A code and how it is written; a lone symbol takes no bits. */
struct Code
{
    QVector<int> lengths;
    QVector<int> values;
    int loneSymbol = -1;

    Code(const Counts &counts, CodeShape shape)
        : lengths(counts.size(), 0), values(counts.size(), 0)
    {
        const QVector<int> used = usedSymbols(counts);
        if (used.size() < 2) {
            loneSymbol = used.value(0);
            return;
        }
        lengths = codeLengths(counts, shape);
        int next = 0;
        for (int length = 1; length <= LongestCode; ++length) {
            for (const int symbol : used) {
                if (lengths[symbol] == length)
                    values[symbol] = next++;
            }
            next *= 2;
        }
    }

    int count() const
    {
        int n = lengths.size();
        while (n > 0 && lengths[n - 1] == 0)
            --n;
        return n;
    }

    void put(BitWriter &out, int symbol) const { out.put(values[symbol], lengths[symbol]); }
};

void putSmallCode(BitWriter &out, const Code &code, int special)
{
    if (code.loneSymbol >= 0) {
        out.put(0, 5);
        out.put(code.loneSymbol, 5);
        return;
    }
    const int n = code.count();
    out.put(n, 5);
    for (int i = 0; i < n;) {
        const int length = code.lengths[i++];
        if (length < 7) {
            out.put(length, 3);
        } else {
            out.put((1 << (length - 3)) - 2, length - 3);
        }
        if (i == special) {
            int zeros = 0;
            while (zeros < 3 && code.lengths[i + zeros] == 0)
                ++zeros;
            out.put(zeros, 2);
            i += zeros;
        }
    }
}

struct LengthSymbol
{
    int symbol;
    int extra = 0;
    int extraBits = 0;
};

/** The main code's lengths as symbols of the length code, with runs of zeros put together. */
QVector<LengthSymbol> lengthSymbols(const Code &code)
{
    QVector<LengthSymbol> symbols;
    const int n = code.count();
    for (int i = 0; i < n;) {
        if (code.lengths[i] > 0) {
            symbols.append(LengthSymbol{code.lengths[i++] + 2});
            continue;
        }
        int run = 0;
        while (i + run < n && code.lengths[i + run] == 0)
            ++run;
        if (run >= 20) {
            symbols.append({2, run - 20, 9});
        } else if (run >= 3) {
            run = std::min(run, 18);
            symbols.append({1, run - 3, 4});
        } else {
            run = 1;
            symbols.append(LengthSymbol{0});
        }
        i += run;
    }
    return symbols;
}

void putMainCode(BitWriter &out, const Code &code, CodeShape smallShape)
{
    Counts counts(19, 0);
    const QVector<LengthSymbol> symbols =
        code.loneSymbol < 0 ? lengthSymbols(code) : QVector<LengthSymbol>();
    for (const LengthSymbol &symbol : symbols)
        ++counts[symbol.symbol];
    const Code lengthCode(counts, smallShape);
    putSmallCode(out, lengthCode, 3);
    if (code.loneSymbol >= 0) {
        out.put(0, 9);
        out.put(code.loneSymbol, 9);
        return;
    }
    out.put(code.count(), 9);
    for (const LengthSymbol &symbol : symbols) {
        lengthCode.put(out, symbol.symbol);
        out.put(symbol.extra, symbol.extraBits);
    }
}

bool isMatch(const HusToken &token)
{
    return token.code >= 256 && token.code != EndCode;
}

/** The number of bits that the distance takes. */
int distanceSymbol(int reach)
{
    int symbol = 0;
    for (int distance = reach - 1; distance > 0; distance >>= 1)
        ++symbol;
    return symbol;
}

void putBlock(BitWriter &out, const QVector<HusToken> &tokens, const HusOptions &options)
{
    Counts codes(511, 0);
    Counts distances(15, 0);
    for (const HusToken &token : tokens) {
        ++codes[token.code];
        if (isMatch(token))
            ++distances[distanceSymbol(token.reach)];
    }
    const Code mainCode(codes, options.mainShape);
    const Code distanceCode(distances, options.smallShape);
    out.put(tokens.size() & 0xFFFF, 16);
    putMainCode(out, mainCode, options.smallShape);
    putSmallCode(out, distanceCode, -1);
    for (const HusToken &token : tokens) {
        mainCode.put(out, token.code);
        if (!isMatch(token))
            continue;
        const int symbol = distanceSymbol(token.reach);
        distanceCode.put(out, symbol);
        if (symbol > 1)
            out.put(token.reach - 1 - (1 << (symbol - 1)), symbol - 1);
    }
}

int matchLength(const QByteArray &bytes, int at, int reach)
{
    int length = 0;
    while (length < LongestMatch && at + length < bytes.size() &&
           bytes[at + length] == bytes[at + length - reach])
        ++length;
    return length;
}

} // namespace

void BitWriter::put(int value, int bits)
{
    for (int bit = bits - 1; bit >= 0; --bit) {
        if (m_free == 0) {
            m_bytes.append('\0');
            m_free = 8;
        }
        --m_free;
        m_bytes[m_bytes.size() - 1] =
            static_cast<char>(m_bytes.at(m_bytes.size() - 1) | (value >> bit & 1) << m_free);
    }
}

QByteArray husEncode(const QVector<HusToken> &tokens, const HusOptions &options)
{
    BitWriter out;
    for (int i = 0; i < tokens.size(); i += options.codesPerBlock)
        putBlock(out, tokens.mid(i, options.codesPerBlock), options);
    return out.bytes();
}

QVector<HusToken> husTokens(const QByteArray &bytes)
{
    QVector<HusToken> tokens;
    for (int at = 0; at < bytes.size();) {
        int best = 0;
        int reach = 0;
        for (int back = 1; back <= std::min(at, WindowSize) && best < LongestMatch; ++back) {
            const int length = matchLength(bytes, at, back);
            if (length > best) {
                best = length;
                reach = back;
            }
        }
        if (best >= ShortestMatch) {
            tokens.append({253 + best, reach});
            at += best;
        } else {
            tokens.append(HusToken{static_cast<unsigned char>(bytes.at(at++))});
        }
    }
    tokens.append(HusToken{EndCode});
    return tokens;
}

QByteArray husCompress(const QByteArray &bytes, const HusOptions &options)
{
    return husEncode(husTokens(bytes), options);
}

} // namespace TestSupport
