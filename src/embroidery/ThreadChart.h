#pragma once

#include <QList>
#include <QSharedPointer>
#include <QString>

#include <cstddef>

namespace Embroidery {

class EmbThread;

/** One thread of a maker's chart: 0xRRGGBB and the name. */
struct ChartEntry
{
    int rgb;
    const char *description;
};

/** What the catalogue number of a chart's thread is. */
enum class ChartNumbers { None, Index };

/** The threads of a chart, as objects of the maker's class. */
template <class Thread, std::size_t Count>
QList<QSharedPointer<EmbThread>> buildChart(const ChartEntry (&entries)[Count],
                                            ChartNumbers numbers)
{
    QList<QSharedPointer<EmbThread>> threads;
    threads.reserve(static_cast<int>(Count));
    for (const ChartEntry &entry : entries) {
        const QString number =
            numbers == ChartNumbers::Index ? QString::number(threads.size()) : QString();
        threads.append(Thread::create(entry.rgb >> 16 & 255, entry.rgb >> 8 & 255, entry.rgb & 255,
                                      QString::fromLatin1(entry.description), number));
    }
    return threads;
}

} // namespace Embroidery
