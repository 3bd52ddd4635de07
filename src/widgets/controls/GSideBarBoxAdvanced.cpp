#include "widgets/controls/GSideBarBoxAdvanced.h"

#include <QToolButton>
#include <QVBoxLayout>

GSideBarBoxAdvanced::GSideBarBoxAdvanced(const QString &title, QWidget *parent)
    : GSideBarBox(title, parent), m_button(new QToolButton(this)), m_advanced(new QWidget(this)),
      m_advancedLayout(new QVBoxLayout(m_advanced))
{
    m_advancedLayout->setContentsMargins(0, 0, 0, 0);
    m_button->setCheckable(true);
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_button->setText(tr("Advanced"));
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    layout()->addWidget(m_button);
    layout()->addWidget(m_advanced);
    connect(m_button, &QToolButton::toggled, this, &GSideBarBoxAdvanced::updateAdvanced);
    connect(this, &GSideBarBox::expandedChanged, this, [this](bool expanded) {
        m_button->setVisible(expanded);
        m_advanced->setVisible(expanded && showAdvanced());
    });
    updateAdvanced(false);
}

bool GSideBarBoxAdvanced::showAdvanced() const
{
    return m_button->isChecked();
}

void GSideBarBoxAdvanced::setShowAdvanced(bool show)
{
    m_button->setChecked(show);
}

void GSideBarBoxAdvanced::updateAdvanced(bool show)
{
    m_button->setArrowType(show ? Qt::DownArrow : Qt::RightArrow);
    m_advanced->setVisible(show && isExpanded());
}
