#pragma once

#include <QByteArray>
#include <QCoreApplication>

/** Compressed files (RFC 1952) that every archive tool opens. Any thread. */
class GzipFormat
{
    Q_DECLARE_TR_FUNCTIONS(GzipFormat)

public:
    /** Throws OutOfMemoryError. */
    static QByteArray compressed(const QByteArray &bytes);

    /** Whether @p bytes begin like a compressed file. */
    static bool isCompressed(const QByteArray &bytes);

    /**
     * The bytes of a file of one member. Throws Error when it is cut, altered or holds more
     * than a catalogue ever does.
     */
    static QByteArray decompressed(const QByteArray &bytes);
};
