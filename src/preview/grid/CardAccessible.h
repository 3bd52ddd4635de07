#pragma once

#include "catalogue/records/IFile.h"
#include <QAccessibleInterface>
#include <QPointer>
#include <QSharedPointer>

class GridGraphicsView;

/**
 * The card that shows a file at a place of the sheet, as assistive technologies see it:
 * it is made without the card itself, which is there only while it is seen.
 */
class CardAccessible : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface
{
public:
    /** For the card that stands at @p index now; never valid where none stands. */
    CardAccessible(GridGraphicsView *view, int index);

    int index() const { return m_index; }

    /** No longer once another card or none has taken the place. */
    bool isValid() const override;

    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return 0; }
    int rowIndex() const override { return m_index; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    /** What a click does comes first; toggling selects the card beside others. */
    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

    static const QString &openAction();
    static const QString &favoriteAction();

private:
    QPointer<GridGraphicsView> m_view;
    int m_index;
    QSharedPointer<IFile> m_file;
};
