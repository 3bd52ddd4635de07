#pragma once

#include "preview/drawing/SewingOrder.h"

#include <optional>
#include <QCoreApplication>
#include <QRectF>
#include <QSharedPointer>
#include <QSizeF>
#include <QString>

class QPainter;

/** A design on paper as large as it is sewn, in the hoop that it needs. */
class TrueSizePicture
{
    Q_DECLARE_TR_FUNCTIONS(TrueSizePicture)

public:
    /** What of it comes onto the paper, and how. */
    struct Placement
    {
        /** 1 but for a design that is larger than the paper. */
        double scale;
        /** Whether it is turned by a quarter, since it fits better so. */
        bool turned;
        /** Whether the hoop is drawn. */
        bool hoop;
    };

    /** @param area of the paper, in hundredths of a millimetre */
    TrueSizePicture(const QSharedPointer<const SewingOrder> &order, const QSizeF &area,
                    bool imperial);

    const Placement &placement() const { return m_placement; }
    /** Tells how large the design is drawn, and in which hoop. */
    QString caption() const;
    /** Within @p area, which is as large as was told before. */
    void paint(QPainter &painter, const QRectF &area) const;

private:
    Placement place(const QSizeF &area) const;
    void paintDesign(QPainter &painter) const;
    QString hoopText() const;

    QSharedPointer<const SewingOrder> m_order;
    bool m_imperial;
    /** Millimetres. */
    std::optional<QSizeF> m_hoop;
    Placement m_placement;
};
