#include "ui/panels/SearchMessage.h"

#include "widgets/controls/ScreenReader.h"
#include "widgets/style/WidgetHelper.h"

#include <QEvent>
#include <QLineEdit>

namespace {

/** Both are readable on the windows of their look: contrasts above 6. */
constexpr QColor MistakeOnLight{0xa4, 0x1f, 0x1f};
constexpr QColor MistakeOnDark{0xff, 0x9d, 0x94};

} // namespace

SearchMessage::SearchMessage(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    hide();
}

void SearchMessage::setRemark(const std::optional<QueryRemark> &remark, QLineEdit *field)
{
    const QString message = remark ? remark->message : QString();
    m_kind = remark ? remark->kind : QueryRemark::Hint;
    const bool changed = message != text();
    setText(message);
    setVisible(remark.has_value());
    updateColor();
    if (!changed)
        return;
    field->setAccessibleDescription(message);
    if (remark)
        ScreenReader::say(window(), message);
}

void SearchMessage::setTextIndent(int indent)
{
    setContentsMargins(indent, 0, 0, 0);
}

void SearchMessage::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColor();
}

void SearchMessage::updateColor()
{
    QPalette colors;
    if (m_kind == QueryRemark::Mistake)
        colors.setColor(QPalette::WindowText,
                        WidgetHelper::isDarkMode() ? MistakeOnDark : MistakeOnLight);
    setPalette(colors);
}
