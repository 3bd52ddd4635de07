#include "embroidery/ReadHelper.h"

#include "embroidery/IOException.h"

#include <QBuffer>
#include <QtEndian>

namespace Embroidery {

namespace {

[[noreturn]] void throwEndOfFile()
{
    throw IOException(QStringLiteral("Unexpected end of file."));
}

[[noreturn]] void throwEndOfText()
{
    throw IOException(QStringLiteral("Unexpected end of file"));
}

QString decode(const char *bytes, int length)
{
    return length > 0 ? QString::fromUtf8(bytes, length) : QString();
}

QByteArray allBytes(QIODevice *device)
{
    if (!device->isReadable())
        return QByteArray();
    if (const auto *buffer = qobject_cast<QBuffer *>(device))
        return buffer->data();
    if (device->isSequential())
        return device->read(ReadHelper::MaximumSize + 1);
    const qint64 start = device->pos();
    device->seek(0);
    QByteArray bytes = device->read(qMin<qint64>(device->size(), ReadHelper::MaximumSize + 1));
    device->seek(start);
    return bytes;
}

} // namespace

void ReadHelper::setDevice(QIODevice *device)
{
    m_device = device;
    m_position = 0;
    m_cursor = 0;
    m_bytes = device ? allBytes(device) : QByteArray();
    if (m_bytes.size() > MaximumSize)
        throw IOException(QStringLiteral("File is too large"));
    if (device && !device->isSequential())
        m_cursor = static_cast<int>(qBound(qint64(0), device->pos(), qint64(m_bytes.size())));
}

void ReadHelper::failAtEnd()
{
    m_position += m_bytes.size() - m_cursor;
    m_cursor = m_bytes.size();
    throwEndOfFile();
}

void ReadHelper::skip(int n)
{
    m_position += n;
    if (n > 0)
        m_cursor += qMin(n, m_bytes.size() - m_cursor);
}

void ReadHelper::seek(int n)
{
    if (n > m_bytes.size())
        throwEndOfFile();
    if (n >= 0)
        m_cursor = n;
}

int ReadHelper::readRest(char *buffer)
{
    if (atEnd())
        return -1;
    const int length = m_bytes.size() - m_cursor;
    std::memcpy(buffer, m_bytes.constData() + m_cursor, static_cast<std::size_t>(length));
    m_cursor += length;
    m_position += length;
    return length;
}

int ReadHelper::readInt16LE()
{
    return qFromLittleEndian<quint16>(take(2));
}

int ReadHelper::readInt24LE()
{
    const uchar *bytes = take(3);
    return bytes[0] | bytes[1] << 8 | bytes[2] << 16;
}

int ReadHelper::readInt32LE()
{
    return qFromLittleEndian<qint32>(take(4));
}

int ReadHelper::readInt32BE()
{
    return qFromBigEndian<qint32>(take(4));
}

QByteArray ReadHelper::readData(int n)
{
    const int available = m_bytes.size() - m_cursor;
    if (n < 0 || n > available)
        throwEndOfFile();
    QByteArray bytes = m_bytes.mid(m_cursor, n);
    m_cursor += n;
    return bytes;
}

QString ReadHelper::readString(int n)
{
    if (!m_device)
        throw IOException(QStringLiteral("Stream does not exist"));
    if (n < 1)
        return QString();
    const char *bytes = m_bytes.constData() + m_cursor;
    const int length = qMin(n, m_bytes.size() - m_cursor);
    const void *zero = std::memchr(bytes, 0, static_cast<size_t>(length));
    if (!zero && length < n) {
        m_cursor = m_bytes.size();
        throwEndOfText();
    }
    const int textLength = zero ? static_cast<int>(static_cast<const char *>(zero) - bytes) : n;
    m_cursor += zero ? textLength + 1 : n;
    QString text = decode(bytes, textLength);
    m_position += text.length();
    return text;
}

QString ReadHelper::readString(QIODevice *device, int n)
{
    if (!device)
        throw IOException(QStringLiteral("Stream does not exist"));
    QByteArray bytes;
    for (int i = 0; i < n; ++i) {
        char byte = 0;
        if (!device->getChar(&byte))
            throwEndOfText();
        if (byte == 0)
            break;
        bytes.append(byte);
    }
    return decode(bytes.constData(), bytes.size());
}

} // namespace Embroidery
