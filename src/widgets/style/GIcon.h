#pragma once

#include <QIcon>

/**
 * An icon from an SVG resource that is crisp at every size and device pixel ratio and legible in
 * light and dark.
 *
 * Pictures are drawn in one ink, `#46505a` or `currentColor`, and may use the accent `#2f7f86`.
 * Both are replaced by colours of the application's palette whenever the icon is painted, so an
 * icon follows a change of the palette by itself. Disabled icons fade, icons on a selected row
 * take the colour of the selected text.
 *
 * The type adds nothing to QIcon but its constructors: it may be passed, stored and copied as one.
 */
class GIcon : public QIcon
{
public:
    /** A null icon. */
    GIcon() = default;

    /** The icon of the picture at \a resourcePath; a file that is no SVG becomes a plain QIcon. */
    explicit GIcon(const QString &resourcePath);

    /** An icon for checkable controls: one SVG for the state off, one for the state on. */
    GIcon(const QString &offPath, const QString &onPath);
};
