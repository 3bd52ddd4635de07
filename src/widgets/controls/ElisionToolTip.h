#pragma once

#include <QObject>

class QAbstractItemView;

/** Tells the whole text of an item in a tool tip where the view has no room for all of it. */
class ElisionToolTip : public QObject
{
    Q_OBJECT

public:
    /** \a view, which owns this, shows its items with delegates of the usual kind. */
    explicit ElisionToolTip(QAbstractItemView *view);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemView *m_view;
};
