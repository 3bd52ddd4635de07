#pragma once

#include <QVector>

namespace DesignWriters {

class BitSink;

enum class CodeShape {
    Huffman, //!< the best code for the frequencies
    Comb     //!< lengths 1, 2, 3… in the order of frequency, as long as they fit in 16 bits
};

/** A static Huffman code with codes of at most 16 bits, numbered by length and then by symbol. */
class HuffmanCode
{
public:
    /** A code for symbols that occur this often. */
    explicit HuffmanCode(const QVector<int> &frequencies, CodeShape shape = CodeShape::Huffman);

    /** The code length of each symbol; 0 for all when fewer than two symbols occur. */
    const QVector<int> &lengths() const { return m_lengths; }

    /** The one symbol that occurs (0 when none does), or -1 when several do. */
    int onlySymbol() const { return m_onlySymbol; }

    /** Writes the code of a symbol; nothing when it is the only one. */
    void put(BitSink &sink, int symbol) const;

private:
    QVector<int> m_lengths;
    QVector<unsigned int> m_codes;
    int m_onlySymbol;
};

} // namespace DesignWriters
