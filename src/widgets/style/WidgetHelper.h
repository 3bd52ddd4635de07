#pragma once

#include <QColor>

/** Questions that widgets ask about colours. */
class WidgetHelper
{
public:
    /** Whether the application's palette is a dark one, judged by the lightness of its windows. */
    static bool isDarkMode();

    /** \a share (0 to 1) of \a color, the rest of \a background. */
    static QColor mixed(const QColor &color, const QColor &background, qreal share);

    /** The contrast ratio of two opaque colours, 1 to 21, as web accessibility computes it. */
    static qreal contrast(const QColor &first, const QColor &second);
};
