#include "ui/design/ThreadTableModel.h"

#include "catalogue/records/DesignTexts.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int DiscSize = 18;

QIcon disc(const QColor &color)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(DiscSize, DiscSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::gray);
    painter.drawEllipse(QRectF(0.5, 0.5, DiscSize - 1, DiscSize - 1));
    painter.end();
    // The thread's own colour in a selected row, too.
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

bool isNumeric(int column)
{
    return column == ThreadTableModel::StitchesColumn || column == ThreadTableModel::LengthColumn;
}

} // namespace

ThreadTableModel::ThreadTableModel(QObject *parent) : QAbstractTableModel(parent) {}

void ThreadTableModel::setDesign(const QSharedPointer<const SewingOrder> &order)
{
    beginResetModel();
    m_order = order;
    endResetModel();
}

void ThreadTableModel::setImperial(bool imperial)
{
    beginResetModel();
    m_imperial = imperial;
    endResetModel();
}

int ThreadTableModel::rowCount(const QModelIndex &parent) const
{
    return m_order && !parent.isValid() ? m_order->threadUses().size() : 0;
}

int ThreadTableModel::columnCount(const QModelIndex &) const
{
    return LengthColumn + 1;
}

QVariant ThreadTableModel::data(const QModelIndex &index, int role) const
{
    const ThreadUse &use = m_order->threadUses().at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(use, index.row(), index.column());
    case Qt::AccessibleTextRole: {
        const QString told = text(use, index.row(), index.column());
        return told.isEmpty() ? tr("undefined") : told;
    }
    case Qt::DecorationRole:
        return index.column() == OrderColumn ? disc(QColor(use.thread->getRGB())) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter |
                        (isNumeric(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return QVariant();
    }
}

QString ThreadTableModel::text(const ThreadUse &use, int row, int column) const
{
    switch (column) {
    case OrderColumn:
        return DesignTexts::number(row + 1);
    case NameColumn:
        return use.thread->getDescription().isEmpty() ? tr("undefined")
                                                      : use.thread->getDescription();
    case NumberColumn:
        return use.thread->getCatalogNumber();
    case ChartColumn:
        return use.thread->getChart();
    case StitchesColumn:
        return DesignTexts::number(use.stitches);
    default:
        return DesignTexts::threadLength(use.length, m_imperial);
    }
}

QVariant ThreadTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (isNumeric(section) ? Qt::AlignRight : Qt::AlignLeft));
    if (role == Qt::ToolTipRole && section == StitchesColumn)
        return tr("How often the needle goes down; jumps and trims do not count.");
    if (role == Qt::ToolTipRole && section == LengthColumn)
        return tr("The thread on the fabric, from one needle point to the next.");
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Color name");
    case NumberColumn:
        return tr("Number");
    case ChartColumn:
        return tr("Chart");
    case StitchesColumn:
        return tr("Stitches");
    case LengthColumn:
        return tr("Length");
    default:
        return QString();
    }
}
