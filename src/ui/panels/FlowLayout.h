#pragma once

#include <QLayout>
#include <QList>
#include <QStyle>

/**
 * Lays items out from left to right and wraps them like the words of a text. An item wider than
 * the whole row is given the width of the row.
 */
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /** Distances in pixels; a negative spacing leaves it to the style. */
    FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    FlowLayout(int margin, int hSpacing, int vSpacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    int horizontalSpacing() const;
    int verticalSpacing() const;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;

private:
    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric metric) const;
    int spacingOrStyle(int spacing, Qt::Orientation orientation) const;

    QList<QLayoutItem *> m_items;
    int m_horizontalSpace;
    int m_verticalSpace;
};
