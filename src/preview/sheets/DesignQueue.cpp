#include "preview/sheets/DesignQueue.h"

#include <algorithm>
#include <QThread>

namespace {

constexpr qint64 Memory = qint64(96) * 1024 * 1024;
constexpr qint64 MemoryPerByte = 32; // of the file: its points
constexpr qint64 BytesPerPixel = 4;
// More would wait for the one that writes the pages.
constexpr int MostThreads = 4;

} // namespace

std::vector<DesignQueue::Job> DesignQueue::jobsOf(const QVector<SheetDesign> &designs,
                                                  const DrawingWish &wish)
{
    const qint64 picture = qint64(wish.side) * wish.side * BytesPerPixel;
    std::vector<Job> jobs;
    jobs.reserve(std::size_t(designs.size()));
    for (const SheetDesign &design : designs)
        jobs.push_back({design, design.fileSize * MemoryPerByte + picture});
    return jobs;
}

DesignQueue::DesignQueue(const QVector<SheetDesign> &designs, const DrawingWish &wish)
    : m_workers(
          jobsOf(designs, wish),
          [wish](const Job &job, const IAbortCheck &) { return DrawnDesign::of(job.design, wish); },
          {std::min(MostThreads, QThread::idealThreadCount()), Memory})
{
}

std::optional<DrawnDesign> DesignQueue::take(std::chrono::milliseconds patience)
{
    return m_workers.take(patience);
}
