#pragma once

#include <QString>

/** Style sheets that the maker's tools share. */
class GWidgetStyles
{
public:
    /** The splitter of a main window: a hairline with room for the pointer around it. */
    static QString MainWindow_SplitterStyle();
};
