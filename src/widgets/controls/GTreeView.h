#pragma once

#include <QIcon>
#include <QTreeView>

class DropFrame;

/**
 * A tree view of one column that shows an icon and a rich text in its middle while it has no
 * rows. A click beside the rows and the Escape key clear the selection. Names that are too long
 * have a tool tip; where the tree is so deep that they would have no room, it scrolls sideways.
 */
class GTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit GTreeView(QWidget *parent = nullptr);

    /**
     * What is shown while there are no rows: \a richText, in \a color, below \a icon. The text
     * without its markup is also the view's accessible description during that time.
     */
    void setPlaceholder(const QIcon &icon, const QString &richText, const QColor &color);

    /** Draws a frame around the rows, to show that something may be dropped here. */
    void setDropHighlighted(bool highlighted);

    void setModel(QAbstractItemModel *model) override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isEmpty() const;
    void updateDescription();
    void fitColumn();
    int deepestLevel(const QModelIndex &parent) const;
    void paintPlaceholder();

    QIcon m_placeholderIcon;
    QString m_placeholderText;
    QColor m_placeholderColor;
    DropFrame *m_dropFrame;
};
