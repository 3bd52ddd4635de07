#include "catalogue/scan/DesignPreparation.h"

#include "base/Error.h"
#include "catalogue/scan/DesignBytes.h"
#include "catalogue/scan/PreviewFolder.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/EmbThread.h"
#include "embroidery/IOException.h"
#include "embroidery/ReadHelper.h"
#include "preview/render/PngEncoder.h"
#include "preview/render/PreviewRenderer.h"
#include <chrono>
#include <new>
#include <QCoreApplication>
#include <utility>

using Embroidery::EmbPattern;
using Embroidery::EmbThread;

namespace {

constexpr double UnitsPerMillimetre = 10.0;
/** Of a byte of a file: two make a point, which takes 12 bytes, and 16 more as a polyline. */
constexpr qint64 MemoryPerByte = 32;
/** A picture, its rows and its compressed form. */
constexpr qint64 MemoryOfPicture = qint64(3) * 400 * 400 * 4;

QString tooLarge()
{
    constexpr int megabytes = Embroidery::ReadHelper::MaximumSize / (1024 * 1024);
    return QCoreApplication::translate("DesignPreparation", "larger than %1 MB").arg(megabytes);
}

void takeDownFacts(const EmbPattern &pattern, PreparedDesign &design)
{
    design.name = pattern.getName();
    const QRectF bounds = pattern.boundingRect();
    design.sizeInMillimetres = bounds.size() / UnitsPerMillimetre;
    design.stitchCount = pattern.getStitchCount();
    const QList<QSharedPointer<EmbThread>> threads = pattern.threadList();
    for (const QSharedPointer<EmbThread> &thread : threads) {
        const QString chart = thread->getChart();
        design.threads.append({thread->getRGB(), thread->getDescription(),
                               chart.isEmpty() ? thread->getBrand() : chart});
    }
}

} // namespace

qint64 DesignJob::memoryNeed() const
{
    return size * MemoryPerByte + MemoryOfPicture;
}

DesignPreparation::DesignPreparation(std::shared_ptr<PreviewFolder> previews,
                                     QSet<QByteArray> existing)
    : m_previews(std::move(previews)), m_existing(std::move(existing))
{
}

PreparedDesign DesignPreparation::prepare(const DesignJob &job, const IAbortCheck &abort) const
{
    try {
        return lookInto(job, abort);
    } catch (const std::bad_alloc &) {
        PreparedDesign design;
        design.reason = OutOfMemoryError::mOutOfMemory;
        return design;
    }
}

PreparedDesign DesignPreparation::lookInto(const DesignJob &job, const IAbortCheck &abort) const
{
    PreparedDesign design;
    const DesignBytes file = DesignBytes::read(job.path, abort);
    design.size = file.size;
    design.modified = file.modified;
    design.reason = file.reason;
    design.vanished = file.vanished;
    if (file.state != DesignBytes::Read) {
        if (file.state == DesignBytes::TooLarge) {
            design.state = PreparedDesign::TooLarge;
            design.reason = tooLarge();
        }
        return design;
    }
    design.hash = file.hash();
    const bool hasPreview = m_existing.contains(design.hash);
    if (hasPreview && design.hash == job.knownHash) {
        design.state = PreparedDesign::Touched;
        return design;
    }
    try {
        const Pattern pattern = Embroidery::EmbroideryIO::readByteArray(job.path, file.bytes);
        takeDownFacts(*pattern, design);
        if (!hasPreview)
            paint(pattern, design, job.order, abort);
        design.state = PreparedDesign::Read;
    } catch (const Embroidery::IOException &exception) {
        // One damaged design must not end the run for all the others.
        design.state = PreparedDesign::Damaged;
        design.reason = exception.message;
    }
    return design;
}

void DesignPreparation::paint(const Pattern &pattern, PreparedDesign &design, int order,
                              const IAbortCheck &abort) const
{
    const auto start = std::chrono::steady_clock::now();
    const QImage image = PreviewRenderer().render(pattern, PreviewSize, abort);
    design.painted = true;
    design.paintingTime = std::chrono::steady_clock::now() - start;
    if (!image.isNull())
        m_previews->store(design.hash, PngEncoder::encode(image), order);
}
