#pragma once

#include "preview/drawing/SewingOrder.h"

#include <QAbstractTableModel>
#include <QSharedPointer>

/** The threads of a design in the order of sewing, one row for each time that one is threaded. */
class ThreadTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        OrderColumn,
        NameColumn,
        NumberColumn,
        ChartColumn,
        StitchesColumn,
        LengthColumn
    };

    explicit ThreadTableModel(QObject *parent = nullptr);

    /** Null for no design. */
    void setDesign(const QSharedPointer<const SewingOrder> &order);
    /** Lengths in yards rather than metres. */
    void setImperial(bool imperial);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const ThreadUse &use, int row, int column) const;

    QSharedPointer<const SewingOrder> m_order;
    bool m_imperial = false;
};
