#include "embroidery/QByteArrayWrapper.h"

#include "embroidery/IOException.h"

QByteArrayWrapper::QByteArrayWrapper(QByteArray *bytes, QIODevice::OpenMode mode) : m_buffer(bytes)
{
    m_buffer.open(mode);
}

void QByteArrayWrapper::WriteBuffer(const char *data, qint64 length)
{
    if (m_buffer.write(data, length) != length)
        throw Embroidery::IOException(QStringLiteral("Failed to write decompressed data"));
}

qint64 QByteArrayWrapper::ReadBuffer(char *data, qint64 length)
{
    return qMax<qint64>(0, m_buffer.read(data, length));
}

qint64 QByteArrayWrapper::GetSize() const
{
    return m_buffer.size();
}

int QByteArrayWrapper::ReadChar()
{
    char byte = 0;
    return m_buffer.getChar(&byte) ? static_cast<unsigned char>(byte) : -1;
}
