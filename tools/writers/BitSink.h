#pragma once

#include <QByteArray>

namespace DesignWriters {

/** Bits under construction, the most significant first. */
class BitSink
{
public:
    /** Appends the low @p count bits of @p value. */
    void put(unsigned int value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            if (m_used % 8 == 0)
                m_bytes.append('\0');
            if (value >> bit & 1)
                m_bytes[m_used / 8] = char(m_bytes[m_used / 8] | (0x80 >> (m_used % 8)));
            ++m_used;
        }
    }

    /** The bits so far, the last byte filled up with zeros. */
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    int m_used = 0;
};

} // namespace DesignWriters
