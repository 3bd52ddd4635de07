#pragma once

#include <QIconEngine>

/** Paints the pictures of a GIcon in the colours of the palette. */
class SvgIconEngine : public QIconEngine
{
public:
    SvgIconEngine(const QString &offPath, const QString &onPath);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    QString key() const override;
    void virtual_hook(int id, void *data) override;

private:
    const QString &path(QIcon::State state) const;

    QString m_offPath;
    QString m_onPath;
};
