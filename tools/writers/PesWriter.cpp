#include "writers/ByteSink.h"
#include "writers/FormatWriters.h"
#include "writers/PecBlock.h"

using namespace Embroidery;

namespace DesignWriters {

namespace {

void writeThread(ByteSink &sink, const EmbThread &thread)
{
    const unsigned int rgb = thread.getRGB();
    sink.shortText(thread.getCatalogNumber().toUtf8());
    sink.u8(int(rgb >> 16));
    sink.u8(int(rgb >> 8));
    sink.u8(int(rgb));
    sink.fill(5);
    sink.shortText(thread.getDescription().toUtf8());
    sink.shortText(thread.getBrand().toUtf8());
    sink.shortText(thread.getChart().toUtf8());
}

} // namespace

QByteArray writePes(const EmbPattern &pattern)
{
    ByteSink header;
    header.fill(4);
    for (const QString &key :
         {EmbPattern::PROP_NAME, EmbPattern::PROP_CATEGORY, EmbPattern::PROP_AUTHOR,
          EmbPattern::PROP_KEYWORDS, EmbPattern::PROP_COMMENTS})
        header.shortText(pattern.metadata(key, QString()).toUtf8());
    header.fill(36);
    header.u8(0);
    header.fill(24);
    header.fill(6);
    const QList<QSharedPointer<EmbThread>> threads = pattern.threadList();
    header.u16(threads.size());
    for (const QSharedPointer<EmbThread> &thread : threads)
        writeThread(header, *thread);

    ByteSink sink;
    sink.append("#PES0060");
    sink.u32(12 + header.size());
    sink.append(header.bytes());
    sink.append(pecBlock(pattern));
    return sink.bytes();
}

} // namespace DesignWriters
