#pragma once

#include <QHash>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class QByteArray;
class QIODevice;

namespace Embroidery {

class EmbPattern;
class IBaseIO;
class IReader;

/**
 * Turns a file name and its bytes into a design. The format is decided by the
 * name's extension alone, whatever its case; the bytes are never sniffed. Any
 * failure is an IOException.
 */
class EmbroideryIO
{
public:
    EmbroideryIO() = delete;

    /** More colours than this are refused, since each costs a thread in memory. */
    static constexpr int MaximumThreadCount = 250000;

    /** The wildcards of all formats, "*.pes" first. */
    static QStringList supportedFormats();

    /** The extension in lower case, without the dot; empty if there is none. */
    static QString getExtensionByFilename(const QString &filename);

    /** A new reader for the name's extension; null if there is none. */
    static QSharedPointer<IReader> getReaderByFilename(const QString &filename);

    static void setSettings(const QSharedPointer<IBaseIO> &target,
                            const QHash<QString, QVariant> &settings);

    /** Reads a design from @p device, which is open and stays the caller's. */
    static QSharedPointer<EmbPattern> readStream(const QString &filename, QIODevice *device,
                                                 const QHash<QString, QVariant> &settings);

    /** Reads the file of that name. */
    static QSharedPointer<EmbPattern> readFile(const QString &filename,
                                               const QHash<QString, QVariant> &settings);

    /** Reads a design from the bytes of a whole file; @p filename only names the format. */
    static QSharedPointer<EmbPattern> readByteArray(const QString &filename, QByteArray bytes);
};

} // namespace Embroidery
