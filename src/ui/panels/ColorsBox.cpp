#include "ui/panels/ColorsBox.h"

#include "catalogue/records/IFile.h"
#include "catalogue/records/IThread.h"
#include "catalogue/records/Thread.h"
#include "ui/panels/ColorBoxPainter.h"
#include "widgets/controls/ElisionToolTip.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { ColorColumn, NameColumn, ChartColumn };

constexpr int ColorColumnWidth = 30;
constexpr int RowHeight = 30;
constexpr int LeastNameWidth = 60;

} // namespace

ColorsBox::ColorsBox(QWidget *parent)
    : GSideBarBox(tr("Colors"), parent), m_tree(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("ColorsBox"));
    setExpandable(false);
    initTree();
    contentLayout()->addWidget(m_tree);
}

void ColorsBox::initTree()
{
    m_tree->setHeaderLabels({QString(), tr("Color name"), tr("Chart")});
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setRootIsDecorated(false);
    m_tree->setSelectionMode(QAbstractItemView::NoSelection);
    m_tree->setFocusPolicy(Qt::NoFocus);
    m_tree->setUniformRowHeights(true);
    m_tree->setAccessibleName(tr("Colors"));
    new ElisionToolTip(m_tree);
    m_tree->setItemDelegateForColumn(ColorColumn, new ColorBoxPainter(m_tree));
    m_tree->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::MinimumExpanding);
    m_tree->header()->setMinimumSectionSize(ColorColumnWidth);
    m_tree->header()->setSectionResizeMode(ColorColumn, QHeaderView::Fixed);
    m_tree->setColumnWidth(ColorColumn, ColorColumnWidth);
}

void ColorsBox::setFiles(const QList<QSharedPointer<IFile>> &files)
{
    if (m_file)
        m_file->threadsProp()->unregister(this);
    m_file.clear();
    if (files.count() == 1) {
        m_file = files.first();
        m_file->threadsProp()->registerObserver(this);
    }
    observedObjectChanged(nullptr);
}

void ColorsBox::observedObjectChanged(const Observable *)
{
    m_tree->clear();
    if (m_file)
        addThreads();
    // The columns of what was shown before need not suit the captions.
    fitColumns();
}

void ColorsBox::addThreads()
{
    const auto textOr = [](const QString &text) { return text.isEmpty() ? tr("undefined") : text; };
    QList<QTreeWidgetItem *> rows;
    const QList<QSharedPointer<IThread>> threads = m_file->threads();
    for (const QSharedPointer<IThread> &thread : threads) {
        const QString name = textOr(thread->colorName());
        auto *row = new QTreeWidgetItem({QString(), name, textOr(thread->chart())});
        if (thread->color().isValid())
            row->setBackground(ColorColumn, QBrush(thread->color()));
        row->setSizeHint(ColorColumn, QSize(0, RowHeight));
        row->setData(ColorColumn, Qt::AccessibleTextRole, name);
        rows.append(row);
    }
    m_tree->addTopLevelItems(rows);
}

void ColorsBox::fitColumns()
{
    m_tree->resizeColumnToContents(NameColumn);
    m_tree->resizeColumnToContents(ChartColumn);
    // A long name makes room for the chart, whose column takes what is left.
    const QAbstractItemView *view = m_tree;
    const int chart =
        qMax(view->sizeHintForColumn(ChartColumn), m_tree->header()->sectionSizeHint(ChartColumn));
    const int room = m_tree->viewport()->width() - ColorColumnWidth;
    // Where there is nothing to read but the captions, they are whole.
    const bool isEmpty = m_tree->topLevelItemCount() == 0;
    const int least = isEmpty ? m_tree->header()->sectionSizeHint(NameColumn) : LeastNameWidth;
    const int name = qMax(room - chart, least);
    if (m_tree->columnWidth(NameColumn) > name)
        m_tree->setColumnWidth(NameColumn, name);
}

void ColorsBox::resizeEvent(QResizeEvent *event)
{
    GSideBarBox::resizeEvent(event);
    fitColumns();
}
