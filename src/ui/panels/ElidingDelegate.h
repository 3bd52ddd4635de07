#pragma once

#include <QStyledItemDelegate>

/** Rows as wide as the list, so that long texts are elided instead of scrolled. */
class ElidingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QSize(0, QStyledItemDelegate::sizeHint(option, index).height());
    }
};
