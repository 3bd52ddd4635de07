#include "widgets/style/GWidgetStyles.h"

QString GWidgetStyles::MainWindow_SplitterStyle()
{
    return QStringLiteral("QSplitter::handle:horizontal { width: 5px; }\n"
                          "QSplitter::handle:vertical { height: 5px; }\n"
                          "QSplitter::handle { background: palette(window); }\n"
                          "QSplitter::handle:hover { background: palette(midlight); }\n");
}
