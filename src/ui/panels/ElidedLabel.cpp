#include "ui/panels/ElidedLabel.h"

#include "widgets/controls/ScreenReader.h"
#include "widgets/style/WidgetHelper.h"

#include <QPainter>

namespace {

constexpr int ToolTipWidth = 100;
constexpr int LeastChars = 3;

} // namespace

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent, Qt::TextElideMode elideMode)
    : QFrame(parent), m_elideMode(elideMode)
{
    ScreenReader::setRole(this, QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setText(text);
}

void ElidedLabel::setText(const QString &text)
{
    m_content = text;
    updateAccessibleName();
    updateGeometry();
    update();
}

void ElidedLabel::setCaption(const QString &caption)
{
    m_caption = caption;
    updateAccessibleName();
}

void ElidedLabel::updateAccessibleName()
{
    setAccessibleName(m_caption.isEmpty() ? m_content : m_caption + QLatin1Char(' ') + m_content);
}

QString ElidedLabel::wrapText(const QString &text, int width)
{
    QStringList lines;
    QString line;
    const QStringList words = text.split(QLatin1Char(' '));
    bool first = true;
    for (const QString &word : words) {
        if (!first && line.length() + word.length() > width) {
            lines += line;
            line = word;
        } else {
            line += first ? word : QLatin1Char(' ') + word;
        }
        first = false;
    }
    lines += line;
    return lines.join(QLatin1Char('\n'));
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QSize(metrics.horizontalAdvance(displayText()), metrics.height()) + frameExtent();
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return QSize(metrics.averageCharWidth() * LeastChars, metrics.height()) + frameExtent();
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString text = displayText();
    const bool tooWide = fontMetrics().horizontalAdvance(text) > area.width();
    const QString shown =
        tooWide ? fontMetrics().elidedText(text, m_elideMode, area.width()) : text;
    painter.drawText(area, Qt::AlignVCenter | Qt::TextSingleLine, shown);

    QString toolTipText;
    if (tooWide)
        toolTipText = WidgetHelper::toolTipText(wrapText(m_content, ToolTipWidth));
    if (toolTipText != toolTip())
        setToolTip(toolTipText);
    setElided(tooWide);
}

QSize ElidedLabel::frameExtent() const
{
    return size() - contentsRect().size();
}

QString ElidedLabel::displayText() const
{
    return QString(m_content).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

void ElidedLabel::setElided(bool elided)
{
    if (elided == m_elided)
        return;
    m_elided = elided;
    emit elisionChanged(elided);
}
