#pragma once

#include <QStyledItemDelegate>

/** Paints a cell's background brush as a disc. */
class ColorBoxPainter : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ColorBoxPainter(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    /** Pixels above and below the disc. */
    int m_padding = 6;
};
