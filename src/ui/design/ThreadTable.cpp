#include "ui/design/ThreadTable.h"

#include "ui/design/ThreadTableModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {

constexpr int RowsMeasured = 100;
constexpr int NameWidth = 110;

} // namespace

ThreadTable::ThreadTable(QWidget *parent) : QTreeView(parent), m_model(new ThreadTableModel(this))
{
    setModel(m_model);
    setAccessibleName(tr("Threads"));
    setAccessibleDescription(tr("In the order of sewing. The arrow keys show where each comes."));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    header()->setResizeContentsPrecision(RowsMeasured);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex &index) { emit useChosen(index.row()); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &index) {
                if (index.isValid() && !m_marking)
                    emit useChosen(index.row());
            });
}

void ThreadTable::setDesign(const QSharedPointer<const SewingOrder> &order)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    m_model->setDesign(order);
    fitColumns();
}

void ThreadTable::setImperial(bool imperial)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    m_model->setImperial(imperial);
}

void ThreadTable::setCurrentUse(int use)
{
    if (use == currentIndex().row())
        return;
    const QScopedValueRollback<bool> marking(m_marking, true);
    if (use < 0) {
        clearSelection();
        setCurrentIndex(QModelIndex());
        return;
    }
    setCurrentIndex(m_model->index(use, 0));
}

void ThreadTable::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home ||
                       key == Qt::Key_End || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    // All others are the window's: there is nothing to search for or to unfold.
    if (moves)
        QTreeView::keyPressEvent(event);
    else
        event->ignore();
}

void ThreadTable::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    widenNames();
}

void ThreadTable::fitColumns()
{
    for (int column = 0; column < m_model->columnCount(); ++column)
        resizeColumnToContents(column);
    m_nameWidth = qMin(columnWidth(ThreadTableModel::NameColumn), NameWidth);
    widenNames();
}

void ThreadTable::widenNames()
{
    const int name = ThreadTableModel::NameColumn;
    const int others = header()->length() - columnWidth(name);
    setColumnWidth(name, qMax(m_nameWidth, viewport()->width() - others));
}
