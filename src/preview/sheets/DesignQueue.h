#pragma once

#include "base/threads/OrderedWorkers.h"
#include "preview/sheets/DrawnDesign.h"

#include <chrono>
#include <optional>
#include <QVector>

/**
 * Reads and draws designs on several threads, ahead of whoever takes them in their
 * order, but only as far as the memory reaches that is put by for it. A drive that hangs
 * holds nobody up but those who wait for its designs.
 */
class DesignQueue
{
public:
    DesignQueue(const QVector<SheetDesign> &designs, const DrawingWish &wish);

    /** The next design; nothing when it is not there within @p patience. */
    std::optional<DrawnDesign> take(std::chrono::milliseconds patience);

private:
    struct Job
    {
        SheetDesign design;
        qint64 need;

        qint64 memoryNeed() const { return need; }
    };

    static std::vector<Job> jobsOf(const QVector<SheetDesign> &designs, const DrawingWish &wish);

    OrderedWorkers<Job, DrawnDesign> m_workers;
};
