#pragma once

#include <QBuffer>

class QByteArray;

/** A byte array as a stream of bytes to read from or to write to. */
class QByteArrayWrapper
{
public:
    /** @p bytes stays the caller's and must outlive this object. */
    QByteArrayWrapper(QByteArray *bytes, QIODevice::OpenMode mode);

    /** Writes @p length bytes. @throws Embroidery::IOException if they don't all fit */
    void WriteBuffer(const char *data, qint64 length);

    /** Reads up to @p length bytes and returns how many came; 0 at the end. */
    qint64 ReadBuffer(char *data, qint64 length);

    /** The size of the array in bytes. */
    qint64 GetSize() const;

    /** One byte, 0 to 255, or -1 at the end. */
    int ReadChar();

private:
    QBuffer m_buffer;
};
