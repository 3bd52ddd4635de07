#pragma once

#include <QFrame>

/**
 * One line of plain text that ends in an ellipsis where it doesn't fit; the whole text is then
 * its tool tip.
 */
class ElidedLabel : public QFrame
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text, QWidget *parent = nullptr,
                         Qt::TextElideMode elideMode = Qt::ElideRight);

    QString text() const { return m_content; }
    void setText(const QString &text);

    /** What stands beside the text; a screen reader, which goes from text to text, reads both. */
    void setCaption(const QString &caption);

    /** Whether the text was too wide when it was last painted. */
    bool isElided() const { return m_elided; }

    /** \a text broken at blanks into lines of about \a width characters. */
    static QString wrapText(const QString &text, int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void elisionChanged(bool elided);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize frameExtent() const;
    QString displayText() const;
    void setElided(bool elided);
    void updateAccessibleName();

    bool m_elided = false;
    QString m_content;
    QString m_caption;
    Qt::TextElideMode m_elideMode;
};
