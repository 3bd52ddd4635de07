#include "embroidery/EmbroideryIO.h"

#include "embroidery/DstReader.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/ExpReader.h"
#include "embroidery/HusReader.h"
#include "embroidery/IOException.h"
#include "embroidery/JefReader.h"
#include "embroidery/PesReader.h"
#include "embroidery/SewReader.h"
#include "embroidery/XxxReader.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace Embroidery {

namespace {

template <class Reader>
QSharedPointer<IReader> makeReader()
{
    return QSharedPointer<Reader>::create();
}

struct Format
{
    const char *extension;
    QSharedPointer<IReader> (*makeReader)();
};

constexpr Format Formats[] = {
    {"pes", makeReader<PesReader>}, {"pec", makeReader<PecReader>}, {"dst", makeReader<DstReader>},
    {"xxx", makeReader<XxxReader>}, {"exp", makeReader<ExpReader>}, {"sew", makeReader<SewReader>},
    {"jef", makeReader<JefReader>}, {"hus", makeReader<HusReader>},
};

} // namespace

QStringList EmbroideryIO::supportedFormats()
{
    QStringList wildcards;
    for (const Format &format : Formats)
        wildcards.append(QStringLiteral("*.") + QLatin1String(format.extension));
    return wildcards;
}

QString EmbroideryIO::getExtensionByFilename(const QString &filename)
{
    return QFileInfo(filename).suffix().toLower();
}

QSharedPointer<IReader> EmbroideryIO::getReaderByFilename(const QString &filename)
{
    const QString extension = getExtensionByFilename(filename);
    for (const Format &format : Formats) {
        if (extension == QLatin1String(format.extension))
            return format.makeReader();
    }
    return QSharedPointer<IReader>();
}

void EmbroideryIO::setSettings(const QSharedPointer<IBaseIO> &target,
                               const QHash<QString, QVariant> &settings)
{
    for (auto it = settings.cbegin(); it != settings.cend(); ++it)
        target->set(it.key(), it.value());
}

QSharedPointer<EmbPattern> EmbroideryIO::readStream(const QString &filename, QIODevice *device,
                                                    const QHash<QString, QVariant> &settings)
{
    const QSharedPointer<IReader> reader = getReaderByFilename(filename);
    if (!reader) {
        throw IOException(QStringLiteral("No reader for file format:") +
                          getExtensionByFilename(filename));
    }
    setSettings(reader, settings);
    QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    reader->read(pattern, device);
    if (qMax(pattern->getThreadCount(), pattern->threadList().size()) > MaximumThreadCount)
        throw IOException(QStringLiteral("Design has too many colours"));
    pattern->ensureAllThreadsSetup();
    return pattern;
}

QSharedPointer<EmbPattern> EmbroideryIO::readFile(const QString &filename,
                                                  const QHash<QString, QVariant> &settings)
{
    QFile file(filename);
    if (!file.open(QIODevice::ReadOnly))
        throw IOException(QStringLiteral("Failed to open file: ") + filename);
    return readStream(filename, &file, settings);
}

QSharedPointer<EmbPattern> EmbroideryIO::readByteArray(const QString &filename, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readStream(filename, &buffer, QHash<QString, QVariant>());
}

} // namespace Embroidery
