#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QSharedPointer>
#include <QTreeView>

class ThreadTableModel;

/** The list of threads in the order of sewing. */
class ThreadTable : public QTreeView
{
    Q_OBJECT

public:
    explicit ThreadTable(QWidget *parent = nullptr);

    void setDesign(const QSharedPointer<const SewingOrder> &order);
    void setImperial(bool imperial);

    /** Marks the use that is being sewn, -1 for none; tells nobody. */
    void setCurrentUse(int use);

signals:
    /** The user wants to see where in the sewing this use comes. */
    void useChosen(int use);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitColumns();
    /** Gives what the columns leave free to the names. */
    void widenNames();

    ThreadTableModel *m_model;
    // At least.
    int m_nameWidth = 0;
    bool m_marking = false;
};
