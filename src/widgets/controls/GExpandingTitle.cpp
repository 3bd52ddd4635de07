#include "widgets/controls/GExpandingTitle.h"

#include "widgets/controls/ScreenReader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>

namespace {

constexpr int ButtonIconSize = 16;

QToolButton *createFlatButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize(QSize(ButtonIconSize, ButtonIconSize));
    return button;
}

} // namespace

GExpandingTitle::GExpandingTitle(const QString &title, QWidget *parent)
    : QFrame(parent), m_layout(new QHBoxLayout(this)), m_arrow(createFlatButton(this)),
      m_label(new QLabel(this))
{
    ScreenReader::setRole(this, QAccessible::Grouping);
    m_arrow->setCheckable(true);
    m_arrow->setChecked(true);
    connect(m_arrow, &QToolButton::toggled, this, [this](bool expanded) {
        updateArrow();
        emit expandedChanged(expanded);
    });

    QFont font = m_label->font();
    font.setBold(true);
    m_label->setFont(font);
    m_label->setTextFormat(Qt::PlainText);

    m_layout->setContentsMargins(8, 2, 4, 2);
    m_layout->setSpacing(2);
    m_layout->addWidget(m_arrow);
    m_layout->addWidget(m_label, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMinimumHeight(30);
    setTitle(title);
    updateArrow();
}

QString GExpandingTitle::title() const
{
    return m_label->text();
}

void GExpandingTitle::setTitle(const QString &title)
{
    m_label->setText(title);
    m_arrow->setAccessibleName(title);
    m_arrow->setToolTip(title);
}

void GExpandingTitle::setExpandable(bool expandable)
{
    m_expandable = expandable;
    m_arrow->setVisible(expandable);
    if (!expandable)
        setExpanded(true);
}

bool GExpandingTitle::isExpanded() const
{
    return m_arrow->isChecked();
}

void GExpandingTitle::setExpanded(bool expanded)
{
    m_arrow->setChecked(expanded);
}

QToolButton *GExpandingTitle::addButton(const GIcon &icon, const QString &toolTip)
{
    QToolButton *button = createFlatButton(this);
    button->setIcon(icon);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    m_layout->addWidget(button);
    return button;
}

void GExpandingTitle::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_expandable && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        m_arrow->toggle();
    QFrame::mouseReleaseEvent(event);
}

void GExpandingTitle::updateArrow()
{
    m_arrow->setArrowType(isExpanded() ? Qt::DownArrow : Qt::RightArrow);
}
