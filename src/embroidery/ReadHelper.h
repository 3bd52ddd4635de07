#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>

class QIODevice;

namespace Embroidery {

/**
 * The byte reader that the format readers share. It takes the bytes of the
 * whole device into memory once and keeps a cursor of its own over them, so
 * that a byte costs no call into the device.
 *
 * Beside the cursor, which says where the next byte comes from, it counts the
 * bytes consumed in tell(). The two part by these rules, which readers depend
 * on: skip(), readFully() and the fixed-width reads advance both; seek() and
 * readData() move the cursor alone; readString() advances the count by the
 * length of the text, not by the bytes that it took.
 */
class ReadHelper
{
public:
    /** The largest device that is read, in bytes; far above any real design. */
    static constexpr int MaximumSize = 16 * 1024 * 1024;

    /**
     * Takes the bytes of @p device in, from its start where it has one; the
     * cursor begins at the device's own position and the count at 0. The device
     * stays the caller's.
     * @throws IOException if it is larger than MaximumSize
     */
    void setDevice(QIODevice *device);

    bool atEnd() const { return m_cursor >= m_bytes.size(); }

    /** The size of the device in bytes. */
    qint64 size() const { return m_bytes.size(); }

    /** The count of bytes consumed; not the cursor, see above. */
    qint64 tell() const { return m_position; }

    /**
     * Advances by @p n bytes, at most to the end. A negative @p n leaves the
     * cursor and still lowers the count. Never throws.
     */
    void skip(int n);

    /**
     * Puts the cursor on byte @p n. A negative @p n does nothing.
     * @throws IOException past the end
     */
    void seek(int n);

    /** Reads up to @p n bytes; returns how many came, -1 at the end. Never throws. */
    int readFully(char *buffer, int n)
    {
        if (m_bytes.size() - m_cursor < n || atEnd())
            return readRest(buffer);
        std::memcpy(buffer, m_bytes.constData() + m_cursor, static_cast<std::size_t>(n));
        m_cursor += n;
        m_position += n;
        return n;
    }

    /** The fixed-width reads throw IOException if the bytes don't suffice. */
    int readInt8() { return *take(1); }
    int readInt16LE();
    int readInt24LE();
    int readInt32LE();
    int readInt32BE();

    /** Exactly @p n bytes. @throws IOException if there are fewer */
    QByteArray readData(int n);

    /**
     * A text of at most @p n bytes in UTF-8. A zero byte ends it and is taken;
     * what is left of the @p n bytes behind it stays unread.
     * @throws IOException if the data ends first
     */
    QString readString(int n);

    /** The same from another device. @throws IOException if it is null */
    static QString readString(QIODevice *device, int n);

    static constexpr int signed8(int v) { return static_cast<signed char>(v & 0xFF); }
    static constexpr int signed16(int v) { return static_cast<short>(v & 0xFFFF); }
    static constexpr int signed16(int high, int low)
    {
        return signed16((high & 0xFF) * 256 + (low & 0xFF));
    }

private:
    const uchar *take(int n)
    {
        if (m_bytes.size() - m_cursor < n)
            failAtEnd();
        const char *bytes = m_bytes.constData() + m_cursor;
        m_cursor += n;
        m_position += n;
        return reinterpret_cast<const uchar *>(bytes);
    }

    /** Reads what is left and returns how much that was; -1 if nothing. */
    int readRest(char *buffer);

    [[noreturn]] void failAtEnd();

    QIODevice *m_device = nullptr;
    qint64 m_position = 0;
    QByteArray m_bytes;
    int m_cursor = 0;
};

} // namespace Embroidery
