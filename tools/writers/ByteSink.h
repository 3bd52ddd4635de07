#pragma once

#include <QByteArray>

namespace DesignWriters {

/** Bytes under construction. Multi-byte numbers are little-endian unless the name says otherwise;
    values are cut to their width. */
class ByteSink
{
public:
    void u8(int value) { m_bytes.append(char(value & 0xFF)); }
    void u16(int value)
    {
        u8(value);
        u8(value >> 8);
    }
    void u24(int value)
    {
        u16(value);
        u8(value >> 16);
    }
    void u32(int value)
    {
        u16(value);
        u16(value >> 16);
    }
    void u32BigEndian(unsigned int value)
    {
        for (int shift = 24; shift >= 0; shift -= 8)
            u8(int(value >> shift));
    }
    void fill(int count, char value = 0) { m_bytes.append(count, value); }
    void append(const QByteArray &bytes) { m_bytes.append(bytes); }
    /** One byte of length and the text as UTF-8, cut to 255 bytes. */
    void shortText(const QByteArray &text)
    {
        const QByteArray cut = text.left(255);
        u8(cut.size());
        append(cut);
    }

    int size() const { return m_bytes.size(); }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

} // namespace DesignWriters
