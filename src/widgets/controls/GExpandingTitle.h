#pragma once

#include "widgets/style/GIcon.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QToolButton;

/**
 * The title bar of a box in a side bar: an arrow that folds the box, the title and small buttons
 * at the far side. A title that is not expandable has no arrow.
 */
class GExpandingTitle : public QFrame
{
    Q_OBJECT

public:
    explicit GExpandingTitle(const QString &title, QWidget *parent = nullptr);

    QString title() const;
    void setTitle(const QString &title);

    bool isExpandable() const { return m_expandable; }
    void setExpandable(bool expandable);

    bool isExpanded() const;
    void setExpanded(bool expanded);

    /**
     * Adds a button without text behind the last one. Its tool tip is also its accessible name.
     * @return the button, owned by this title
     */
    QToolButton *addButton(const GIcon &icon, const QString &toolTip);

signals:
    void expandedChanged(bool expanded);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void updateArrow();

    QHBoxLayout *m_layout;
    QToolButton *m_arrow;
    QLabel *m_label;
    bool m_expandable = true;
};
