#pragma once

#include <QAccessibleWidget>
#include <QHash>

class GridGraphicsView;
class GridPreviewScene;

/**
 * The grid as assistive technologies see it: a list whose items are the cards, in
 * their order. An item is made when it is first asked for. As Qt's own lists it is a
 * table of one column too, by which its selection can be read and changed.
 */
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface
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
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    /** Never null: Qt calls it with places that a client has learned of long ago. */
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int) const override { return QString(); }
    QString rowDescription(int) const override { return QString(); }
    int selectedColumnCount() const override;
    int selectedRowCount() const override { return selectedCellCount(); }
    int columnCount() const override { return 1; }
    int rowCount() const override { return childCount(); }
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent *) override {}

private:
    GridGraphicsView *view() const;
    GridPreviewScene *scene() const;
    bool hasCard(int index) const { return index >= 0 && index < childCount(); }
    QAccessibleInterface *card(int index) const;
    bool setSelected(int row, bool selected);

    mutable QHash<int, QAccessible::Id> m_cards;
};
