#pragma once

#include "preview/sheets/ContactSheetLayout.h"
#include "preview/sheets/Sheet.h"

#include <QCoreApplication>
#include <QFont>

/** Small pictures of many designs, row by row. Each page is a section. */
class ContactSheet : public Sheet
{
    Q_DECLARE_TR_FUNCTIONS(ContactSheet)

public:
    ContactSheet(const SheetDesigns &designs, const SheetOptions &options, const QSizeF &area);

    DrawingWish wish() const override;
    int pageCount(int section, const QVector<DrawnDesign> &drawn) const override;
    void paint(QPainter &painter, int section, int page,
               const QVector<DrawnDesign> &drawn) const override;

private:
    QVector<int> group();
    ContactSheetLayout::Measures measures() const;
    double factsHeight() const;
    void paintCell(QPainter &painter, const QRectF &area, const SheetDesign &design,
                   const DrawnDesign &drawn) const;
    void paintPicture(QPainter &painter, const QRectF &frame, const DrawnDesign &drawn) const;
    void paintFacts(QPainter &painter, const QRectF &area, const SheetDesign &design,
                    const DrawnDesign &drawn) const;
    QString text(SheetOptions::Fact fact, const SheetDesign &design,
                 const DrawnDesign &drawn) const;

    const QFont m_nameFont;
    const QFont m_factFont;
    ContactSheetLayout m_layout;
};
