#include "widgets/controls/GTreeView.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

constexpr int PlaceholderIconSize = 64;
constexpr int PlaceholderGap = 12;
constexpr int DropFrameWidth = 2;

} // namespace

GTreeView::GTreeView(QWidget *parent) : QTreeView(parent) {}

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
    m_dropHighlighted = highlighted;
    viewport()->update();
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
    updateDescription();
}

void GTreeView::mousePressEvent(QMouseEvent *event)
{
    QTreeView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && !indexAt(event->pos()).isValid())
        clearSelection();
}

void GTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && selectionModel() && selectionModel()->hasSelection())
        clearSelection();
    else
        QTreeView::keyPressEvent(event);
}

void GTreeView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (isEmpty())
        paintPlaceholder();
    if (m_dropHighlighted)
        paintDropFrame();
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

void GTreeView::paintDropFrame()
{
    constexpr qreal Inset = DropFrameWidth / 2.0;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Highlight), DropFrameWidth));
    painter.drawRect(QRectF(viewport()->rect()).adjusted(Inset, Inset, -Inset, -Inset));
}
