#include "widgets/controls/GResizingTextEdit.h"

#include <QAbstractTextDocumentLayout>
#include <QtMath>

namespace {

constexpr int LeastLines = 3;
constexpr int MostLines = 16;

} // namespace

GResizingTextEdit::GResizingTextEdit(QWidget *parent) : QTextEdit(parent)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_height = heightOfLines(LeastLines);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &GResizingTextEdit::followText);
}

QSize GResizingTextEdit::sizeHint() const
{
    return QSize(QTextEdit::sizeHint().width(), m_height);
}

QSize GResizingTextEdit::minimumSizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 8, m_height);
}

void GResizingTextEdit::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    followText();
}

void GResizingTextEdit::followText()
{
    const int content = qCeil(document()->size().height()) + 2 * frameWidth();
    const int height = qBound(heightOfLines(LeastLines), content, heightOfLines(MostLines));
    if (height == m_height)
        return;
    m_height = height;
    updateGeometry();
}

int GResizingTextEdit::heightOfLines(int lines) const
{
    return qCeil(lines * fontMetrics().lineSpacing() + 2 * document()->documentMargin()) +
           2 * frameWidth();
}
