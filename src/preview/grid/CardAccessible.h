#pragma once

#include "catalogue/records/IFile.h"
#include <QAccessibleInterface>
#include <QPointer>
#include <QSharedPointer>

class GridEmbroideryItem;
class GridGraphicsView;

/** The card that shows a file at a place of the sheet, as assistive technologies see it. */
class CardAccessible : public QAccessibleInterface
{
public:
    /** For the card that stands at @p index now; @p view has so many cards. */
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

private:
    GridEmbroideryItem *card() const;

    QPointer<GridGraphicsView> m_view;
    int m_index;
    QSharedPointer<IFile> m_file;
};
