#include "widgets/controls/GSideBarBox.h"

#include "widgets/controls/GExpandingTitle.h"

#include <QVBoxLayout>

GSideBarBox::GSideBarBox(const QString &title, QWidget *parent)
    : QWidget(parent), m_titleBar(new GExpandingTitle(title, this)), m_content(new QWidget(this)),
      m_contentLayout(new QVBoxLayout(m_content))
{
    m_contentLayout->setContentsMargins(0, 0, 0, 0);
    m_contentLayout->setSpacing(0);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(m_content, 1);

    setAccessibleName(title);
    connect(m_titleBar, &GExpandingTitle::expandedChanged, this, &GSideBarBox::showContent);
}

void GSideBarBox::setExpandable(bool expandable)
{
    m_titleBar->setExpandable(expandable);
}

bool GSideBarBox::isExpanded() const
{
    return m_titleBar->isExpanded();
}

void GSideBarBox::showContent(bool visible)
{
    m_content->setVisible(visible);
    setMaximumHeight(visible ? QWIDGETSIZE_MAX : m_titleBar->sizeHint().height());
    emit expandedChanged(visible);
}
