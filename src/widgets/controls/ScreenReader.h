#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

/** What assistive technologies are told beyond what Qt tells them by itself. */
class ScreenReader
{
public:
    /**
     * Makes @p widget one of that kind to them; to be called first in the constructor of a
     * class of its own. Its tool tip, which may be in markup, is no description of it then.
     */
    static void setRole(QWidget *widget, QAccessible::Role role);

    /**
     * Lets them speak @p text at once, wherever the keyboard is in @p window; nothing while
     * another window is in use.
     */
    static void say(QWidget *window, const QString &text);

    /** Gives @p widget the tool tip, which is rich text, and tells it to them without markup. */
    static void setRichToolTip(QWidget *widget, const QString &toolTip);
};
