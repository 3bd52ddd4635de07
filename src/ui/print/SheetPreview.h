#pragma once

#include <QImage>
#include <QWidget>

class SheetPages;

/** Shows the page of a sheet as large as there is room. */
class SheetPreview : public QWidget
{
    Q_OBJECT

public:
    /** @param pages not owned, must outlive the preview */
    explicit SheetPreview(SheetPages *pages, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void pageChanged();
    QRectF paperRect() const;

    SheetPages *m_pages;
    QImage m_image;
    int m_wheel = 0;
};
