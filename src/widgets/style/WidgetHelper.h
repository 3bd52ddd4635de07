#pragma once

#include <QColor>
#include <QString>

/** Small questions that widgets ask about colours and texts. */
class WidgetHelper
{
public:
    /** Whether the application's palette is a dark one, judged by the lightness of its windows. */
    static bool isDarkMode();

    /** \a share (0 to 1) of \a color, the rest of \a background. */
    static QColor mixed(const QColor &color, const QColor &background, qreal share);

    /** The contrast ratio of two opaque colours, 1 to 21, as web accessibility computes it. */
    static qreal contrast(const QColor &first, const QColor &second);

    /**
     * \a text with places to break at inside words that no line could hold: tool tips wrap at
     * blanks only. For what nobody can copy, and never for storage.
     */
    static QString breakable(const QString &text);

    /** \a text as the rich text of a tool tip: markup in it is shown, long words are broken. */
    static QString toolTipText(const QString &text);
};
