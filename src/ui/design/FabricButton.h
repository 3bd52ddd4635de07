#pragma once

#include <QColor>
#include <QToolButton>

/** Chooses the colour of the fabric that designs are shown on. */
class FabricButton : public QToolButton
{
    Q_OBJECT

public:
    explicit FabricButton(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    /** Tells nobody. */
    void setColor(const QColor &color);

    QSize sizeHint() const override;

signals:
    /** The user has chosen another one. */
    void colorChosen(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addColor(const QString &name, const QColor &color);
    void chooseOther();
    void choose(const QColor &color);

    QColor m_color;
};
