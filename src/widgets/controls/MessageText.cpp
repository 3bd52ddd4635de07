#include "widgets/controls/MessageText.h"

#include <QScreen>
#include <QtMath>

namespace {

constexpr int LeastWidth = 320;
constexpr int MostWidth = 480;
/** Of the screen's height, for one text. */
constexpr double MostOfScreen = 0.4;

} // namespace

MessageText::MessageText(const QString &text, QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // Whoever wants to copy clicks; for the others the keys are about the buttons.
    setFocusPolicy(Qt::ClickFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextOption wrapping = document()->defaultTextOption();
    wrapping.setWrapMode(wordWrapMode());
    document()->setDefaultTextOption(wrapping);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    setPlainText(text);
    setAccessibleName(tr("Message"));
}

void MessageText::fit(const QFont &font)
{
    setFont(font);
    // The view's own document follows the width that the view happens to have.
    QTextDocument measure;
    measure.setDocumentMargin(0);
    measure.setDefaultFont(font);
    measure.setDefaultTextOption(document()->defaultTextOption());
    measure.setPlainText(toPlainText());
    const int width = qBound(LeastWidth, qCeil(measure.idealWidth()) + 1, MostWidth);
    measure.setTextWidth(width);
    const int height = qCeil(measure.size().height());
    const int most = int(MostOfScreen * screen()->availableGeometry().height());
    setVerticalScrollBarPolicy(height > most ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setFixedSize(width, qMin(height, most));
}
