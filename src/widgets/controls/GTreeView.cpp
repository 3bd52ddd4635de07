#include "widgets/controls/GTreeView.h"

#include "widgets/controls/DropFrame.h"
#include "widgets/controls/ElisionToolTip.h"

#include <QAbstractTextDocumentLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

constexpr int PlaceholderIconSize = 64;
constexpr int PlaceholderGap = 12;
constexpr int LeastNameWidth = 120;

} // namespace

GTreeView::GTreeView(QWidget *parent) : QTreeView(parent), m_dropFrame(new DropFrame(viewport()))
{
    new ElisionToolTip(this);
    header()->setStretchLastSection(false);
    connect(this, &QTreeView::expanded, this, &GTreeView::fitColumn);
    connect(this, &QTreeView::collapsed, this, &GTreeView::fitColumn);
}

void GTreeView::setPlaceholder(const QIcon &icon, const QString &richText, const QColor &color)
{
    m_placeholderIcon = icon;
    m_placeholderText = richText;
    m_placeholderColor = color;
    updateDescription();
    viewport()->update();
}

void GTreeView::setDropHighlighted(bool highlighted)
{
    m_dropFrame->setVisible(highlighted);
}

void GTreeView::setModel(QAbstractItemModel *model)
{
    if (this->model())
        this->model()->disconnect(this);
    QTreeView::setModel(model);
    if (!model)
        return;
    connect(model, &QAbstractItemModel::rowsInserted, this, &GTreeView::updateDescription);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &GTreeView::updateDescription);
    connect(model, &QAbstractItemModel::modelReset, this, &GTreeView::updateDescription);
    connect(model, &QAbstractItemModel::rowsInserted, this, &GTreeView::fitColumn);
    connect(model, &QAbstractItemModel::modelReset, this, &GTreeView::fitColumn);
    updateDescription();
    fitColumn();
}

void GTreeView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QTreeView::scrollTo(index, hint);
    if (!index.isValid())
        return;
    QScrollBar *bar = horizontalScrollBar();
    const int left = visualRect(index).left();
    const int width = qMin(sizeHintForIndex(index).width(), viewport()->width());
    const int beyond = left + width - viewport()->width();
    if (left < 0 || beyond > 0)
        bar->setValue(bar->value() + (left < 0 ? left : beyond));
}

void GTreeView::mousePressEvent(QMouseEvent *event)
{
    // The others would choose a row though there is nothing to do with it.
    if (event->button() != Qt::LeftButton)
        return;
    QTreeView::mousePressEvent(event);
    if (!indexAt(event->pos()).isValid())
        clearSelection();
}

void GTreeView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    fitColumn();
}

void GTreeView::fitColumn()
{
    if (!model() || model()->columnCount() == 0)
        return;
    // A row without room for its name would be out of reach for the arrow keys, too.
    const int levels = deepestLevel(rootIndex()) + (rootIsDecorated() ? 1 : 0);
    setColumnWidth(0, qMax(viewport()->width(), levels * indentation() + LeastNameWidth));
}

int GTreeView::deepestLevel(const QModelIndex &parent) const
{
    int deepest = 0;
    for (int row = 0; row < model()->rowCount(parent); ++row) {
        const QModelIndex index = model()->index(row, 0, parent);
        if (isExpanded(index))
            deepest = qMax(deepest, 1 + deepestLevel(index));
    }
    return deepest;
}

void GTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && selectionModel() && selectionModel()->hasSelection())
        clearSelection();
    else if (event->key() == Qt::Key_Left && isExpanded(currentIndex()))
        // While the view is scrolled sideways, the base would leave the folder open.
        collapse(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

void GTreeView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (isEmpty())
        paintPlaceholder();
}

bool GTreeView::isEmpty() const
{
    return !model() || model()->rowCount(rootIndex()) == 0;
}

void GTreeView::updateDescription()
{
    QString description;
    if (isEmpty())
        description = QTextDocumentFragment::fromHtml(m_placeholderText).toPlainText();
    setAccessibleDescription(description.simplified());
    viewport()->update();
}

void GTreeView::paintPlaceholder()
{
    const QRect area = viewport()->rect();
    QTextDocument text;
    text.setDefaultFont(font());
    text.setDocumentMargin(0);
    text.setHtml(m_placeholderText);
    text.setTextWidth(area.width());

    const int iconSize = m_placeholderIcon.isNull() ? 0 : PlaceholderIconSize;
    const int gap = iconSize > 0 ? PlaceholderGap : 0;
    const int height = iconSize + gap + qRound(text.size().height());
    const int top = qMax(0, (area.height() - height) / 2);

    QPainter painter(viewport());
    m_placeholderIcon.paint(&painter, (area.width() - iconSize) / 2, top, iconSize, iconSize);
    painter.translate(0, top + iconSize + gap);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, m_placeholderColor);
    text.documentLayout()->draw(&painter, context);
}
