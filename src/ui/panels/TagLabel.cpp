#include "ui/panels/TagLabel.h"

#include "ui/panels/ElidedLabel.h"
#include "ui/panels/TagLabelAccessible.h"
#include "widgets/controls/ScreenReader.h"
#include "widgets/style/GIcon.h"
#include "widgets/style/WidgetHelper.h"
#include "widgets/style/WidgetStyles.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

namespace {

constexpr int CrossSize = 14; // pixels

QString focusStyle()
{
    return QStringLiteral("QToolButton:focus {background-color: palette(highlight); "
                          "color: palette(highlighted-text)}\n");
}

} // namespace

TagLabel::TagLabel(const QString &text, MultiSelection multiSelect, QWidget *parent)
    : QFrame(parent), m_removeAction(new QAction(tr("X"), this)),
      m_removeButton(new QToolButton(this)), m_label(new ElidedLabel(text, this)),
      m_multiSelect(multiSelect)
{
    TagLabelAccessible::install();
    m_removeAction->setIcon(GIcon(QStringLiteral(":/icons/small_clear.svg")));
    m_removeButton->setDefaultAction(m_removeAction);
    m_removeButton->setIconSize(QSize(CrossSize, CrossSize));
    m_removeButton->setFocusPolicy(Qt::StrongFocus);
    connect(m_removeAction, &QAction::triggered, this, &TagLabel::removeTriggered);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_removeButton);
    m_label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    updateStyle();
    updateToolTips();
}

void TagLabel::setText(const QString &text)
{
    if (text == m_label->text())
        return;
    m_label->setText(text);
    updateToolTips();
}

QString TagLabel::text() const
{
    return m_label->text();
}

void TagLabel::setMultiSelect(MultiSelection multiSelect)
{
    if (multiSelect == m_multiSelect)
        return;
    m_multiSelect = multiSelect;
    updateStyle();
    updateToolTips();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void TagLabel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        updateStyle();
}

void TagLabel::removeTriggered()
{
    emit removeTag(this);
}

void TagLabel::updateStyle()
{
    const QString style = m_multiSelect == SetOnAll ? WidgetStyles::TagLabelAllSelected()
                                                    : WidgetStyles::TagLabelSomeSelected();
    // Setting a style sheet changes the palette in turn.
    if (styleSheet() != style + focusStyle())
        setStyleSheet(style + focusStyle());
}

void TagLabel::updateToolTips()
{
    const QString tag = WidgetHelper::breakable(text()).toHtmlEscaped();
    const QString place =
        m_multiSelect == SetOnAll
            ? tr("The tag <b>%1</b> is set on all selected files.").arg(tag)
            : tr("The tag <b>%1</b> is set on some of the selected files.").arg(tag);
    ScreenReader::setRichToolTip(this, place);
    m_removeAction->setToolTip(tr("Remove tag <b>%1</b> from all selected files").arg(tag));
    m_removeButton->setAccessibleName(tr("Remove tag %1").arg(text()));
    // What the keyboard comes to tells of the chip around it.
    m_removeButton->setAccessibleDescription(accessibleDescription());
}
