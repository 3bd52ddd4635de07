#pragma once

#include <QWidget>

class GExpandingTitle;
class QVBoxLayout;

/** A titled panel that stacks in a GSideBar: a title bar with the content below it. */
class GSideBarBox : public QWidget
{
    Q_OBJECT

public:
    explicit GSideBarBox(const QString &title, QWidget *parent = nullptr);

    /** The title bar, which takes the panel's buttons. Owned by the box. */
    GExpandingTitle *titleBar() const { return m_titleBar; }

    /** The layout that the panel's content goes into. Owned by the box. */
    QVBoxLayout *contentLayout() const { return m_contentLayout; }

    /** Whether the user may fold the box away; a box that may not is always open. */
    void setExpandable(bool expandable);
    bool isExpanded() const;

signals:
    void expandedChanged(bool expanded);

private:
    void showContent(bool visible);

    GExpandingTitle *m_titleBar;
    QWidget *m_content;
    QVBoxLayout *m_contentLayout;
};
