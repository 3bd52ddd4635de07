#pragma once

#include "embroidery/StitchBlock.h"
#include "preview/render/StitchPainter.h"
#include <QList>

class IAbortCheck;
class StitchLight;

/**
 * Paints the stitches of a design in their order, within a budget.
 *
 * Files can hold millions of stitches that lie upon each other, which nobody has sewn
 * and nobody could see. Such a design is painted from the last stitch to the first, each
 * only where nothing covers it yet, until nothing is open any more: the same picture, as
 * what is covered can't be seen. When half of the budget is spent that way, only every
 * so-manieth of the stitches below is looked at, so that the rest of the budget reaches
 * to the first one. The budget counts work, not time, so that a design gives the same
 * picture everywhere.
 */
class DesignPainter
{
public:
    /** In units of StitchPainter::work(). */
    struct Budget
    {
        /** A design of no more than this is painted stitch by stitch; far above any that was
            ever sewn, at the size of a preview. */
        qint64 ordinary;
        /** What a design beyond that may take. */
        qint64 extraordinary;

        /** The budget for a picture of so many pixels. */
        static Budget forPicture(const QSize &size);
    };

    /** The parts are not owned and must outlive the painter. */
    DesignPainter(StitchPainter &painter, const StitchLight &light, const IAbortCheck &abort);

    /** False when it was aborted. */
    bool paint(const QList<Embroidery::StitchBlock> &blocks, const Budget &budget);

private:
    bool paintUpwards(const QList<Embroidery::StitchBlock> &blocks);
    bool paintDownwards(const QList<Embroidery::StitchBlock> &blocks, qint64 work, qint64 budget);
    StitchPainter::Colors colors(const QPointF &from, const QPointF &to, QRgb thread) const;
    bool isAborted();

    StitchPainter &m_painter;
    const StitchLight &m_light;
    const IAbortCheck &m_abort;
    int m_stitchesSinceCheck = 0;
};
