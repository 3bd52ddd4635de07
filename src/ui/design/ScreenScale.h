#pragma once

#include <QSizeF>

class QScreen;

/** How large a millimetre is on a screen. */
struct ScreenScale
{
    /** In the pixels of widgets, which on a dense screen are larger than its own. */
    double pixelsPerMillimetre;
    /** Whether the screen tells its size; otherwise the scale is what the desktop assumes. */
    bool isMeasured;

    static ScreenScale of(const QScreen *screen);

    /**
     * The same for a screen that says it measures @p millimetres. @p pixels are those of
     * widgets, of which each is @p ratio of the screen's own; @p assumed is how many of
     * them the desktop takes for an inch. What cannot be, and what was only worked out
     * from an assumed resolution, counts as not told.
     */
    static ScreenScale of(const QSizeF &millimetres, const QSizeF &pixels, double ratio,
                          double assumed);
};
