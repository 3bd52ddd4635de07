#pragma once

#include <QAccessibleWidget>
#include <QHash>

class GridGraphicsView;
class GridPreviewScene;

/**
 * The grid as assistive technologies see it: a list whose items are the cards, in
 * their order. An item is made when it is first asked for.
 */
class GridAccessible : public QAccessibleWidget
{
public:
    /** Makes it the accessible side of every GridGraphicsView. */
    static void install();

    explicit GridAccessible(GridGraphicsView *view);
    ~GridAccessible() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    GridGraphicsView *view() const;
    GridPreviewScene *scene() const;

    mutable QHash<int, QAccessible::Id> m_cards;
};
