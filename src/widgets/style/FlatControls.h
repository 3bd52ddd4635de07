#pragma once

#include <QRect>
#include <QStyle>

class QColor;
class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QStyleOptionTab;

/** How TnwMacStyle paints the controls that its base style would give a gradient and bevels. */
namespace FlatControls {

/** The part of a scroll bar without arrow buttons, in the coordinates of \a option's rectangle. */
QRect scrollBarPart(const QStyleOptionSlider *option, QStyle::SubControl part);

void drawScrollBar(const QStyleOptionSlider *option, QPainter *painter);

/** The frame of a progress bar and what is behind its contents. */
void drawProgressGroove(const QStyleOption *option, QPainter *painter);

/** Keeps what a base style paints of a bar that only moves within the frame. */
void clipToProgressGroove(const QStyleOption *option, QPainter *painter);

/** The share that is done; for a horizontal bar whose range is known. */
void drawProgressContents(const QStyleOptionProgressBar *option, QPainter *painter);

/** The box of a check box with its mark. */
void drawCheckBox(const QStyleOption *option, QPainter *painter);

/** The line between the field that is written in and \a arrow, the end that opens the list. */
void drawComboDivider(const QStyleOptionComboBox *option, const QRect &arrow, QPainter *painter);

/** The line below a tab, in \a accent when it is the current one. Tabs are at the top. */
void drawTab(const QStyleOptionTab *option, QPainter *painter, const QColor &accent);

/** The line between tabs and page. */
void drawTabPane(const QStyleOption *option, QPainter *painter);

/** The heading of a column, without its text. */
void drawHeaderSection(const QStyleOptionHeader *option, QPainter *painter);

/** What is left of the line of headings. */
void drawHeaderRest(const QStyleOption *option, QPainter *painter);

/** The ground of a menu with its frame. */
void drawMenuPanel(const QStyleOption *option, QPainter *painter);

/** The line between two groups of a menu's entries. */
void drawMenuSeparator(const QStyleOptionMenuItem *option, QPainter *painter);

} // namespace FlatControls
