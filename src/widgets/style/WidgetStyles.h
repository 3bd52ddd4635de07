#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/**
 * The product's colours, palettes and style sheets.
 *
 * The tints Primary25 to Primary900 are one ramp from pale to deep and the same in light and dark;
 * they may be used before the application object exists. Everything else depends on the palette
 * and is made anew by each call: ask when painting, or again on a change of the palette.
 */
class WidgetStyles
{
public:
    static constexpr QColor Primary25{0xf1, 0xf6, 0xf6};
    static constexpr QColor Primary50{0xdd, 0xec, 0xec};
    static constexpr QColor Primary100{0xaf, 0xd4, 0xd6};
    static constexpr QColor Primary200{0x8c, 0xc1, 0xc4};
    static constexpr QColor Primary300{0x68, 0xad, 0xb2};
    static constexpr QColor Primary400{0x48, 0x96, 0x9c};
    static constexpr QColor Primary500{0x2f, 0x7f, 0x86};
    static constexpr QColor Primary600{0x29, 0x6f, 0x76};
    static constexpr QColor Primary700{0x23, 0x5e, 0x64};
    static constexpr QColor Primary800{0x1d, 0x4d, 0x53};
    static constexpr QColor Primary900{0x15, 0x3a, 0x3f};
    /** The ground of a card in a dark window. */
    static constexpr QColor DarkCard{0x34, 0x3b, 0x3f};

    /**
     * Lets tool tips and widgets with style sheets follow the palette and its changes. Called
     * once, when the application object exists and before the first widget is made.
     */
    static void init();

    /** The thread-like accent: marks focus, selection and details of icons. */
    static QColor Accent();

    /** The palette of the sheet behind the cards. */
    static QPalette GraphicsViewPalette();

    /** The ground of a card. */
    static QColor CardGround();

    /** The strip below the picture of a card, where the card's name is. */
    static QColor CardLabel(bool selected);

    /** Text on either strip. */
    static QColor CardText();

    /** The frame of the card that the keys are about. */
    static QColor CardFocus();

    /** The palette of a field that the user writes into. */
    static QPalette EditFieldDefault();

    static QString LeftSideBar();
    static QString RightSideBar();

    /** Tool buttons without a frame that show hover, press and focus. */
    static QString ToolButton_FlatStyle();

    /** A row of the bar across the window: amber for a problem, the product's tint otherwise. */
    static QString NoticeStyle(bool problem);

    /** The style of a chip whose tag is set on all selected files. */
    static QString TagLabelAllSelected();

    /** The style of a chip whose tag is set on some of the selected files. */
    static QString TagLabelSomeSelected();

    /** The style of a chip: tag on all selected files or only on some. */
    static QString createTagLabelStyle(bool allSelected);
};
