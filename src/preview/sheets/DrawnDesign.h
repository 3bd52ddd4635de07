#pragma once

#include "preview/drawing/SewingOrder.h"
#include "preview/sheets/SheetDesign.h"

#include <QImage>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>

/** How a sheet wants its designs. */
struct DrawingWish
{
    /** Pixels of the longer side of the picture. */
    int side;
    /** Whether the sheet also wants the stitches themselves. */
    bool stitches;
};

/** A design as it comes onto the paper. */
struct DrawnDesign
{
    /** On white, without a margin; null where there is neither a design nor a preview. */
    QImage picture;
    /** Null where the file could not be read, or where the sheet does not want it. */
    QSharedPointer<const SewingOrder> order;
    /** Why the file could not be read, for the user. */
    QString error;
    /** Millimetres; -1 x -1 when not known. */
    QSizeF size{-1, -1};
    int stitches = 0;
    int colors = 0;

    /** Bytes. */
    qint64 memoryNeed() const;

    /** Reads and draws. Any thread. @throws std::bad_alloc */
    static DrawnDesign of(const SheetDesign &design, const DrawingWish &wish);
};
