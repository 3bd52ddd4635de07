#include "ui/panels/ColorBoxPainter.h"

#include <QPainter>

ColorBoxPainter::ColorBoxPainter(QObject *parent) : QStyledItemDelegate(parent) {}

void ColorBoxPainter::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem initialized = option;
    initStyleOption(&initialized, index);
    const QRect cell = initialized.rect;
    const int diameter = cell.height() - 2 * m_padding;
    const int left = cell.left() + (cell.width() - diameter) / 2;

    painter->save();
    painter->setBrush(initialized.backgroundBrush);
    painter->setPen(Qt::gray);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawEllipse(left, cell.top() + m_padding, diameter, diameter);
    painter->restore();
}
