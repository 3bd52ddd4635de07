#pragma once

#include <QVector>

namespace DesignWriters {

class BitSink;

/** A static Huffman code with codes of at most 16 bits, numbered by length and then by symbol. */
class HuffmanCode
{
public:
    /** The best code for symbols that occur this often. */
    explicit HuffmanCode(const QVector<int> &frequencies);

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
