#pragma once

#include "preview/sheets/PageFlow.h"
#include "preview/sheets/Sheet.h"

#include <QCoreApplication>

/**
 * All about one design on a page or more, to have beside the machine: its picture and
 * facts, its threads in the order of sewing, the user's words about it, and room for
 * more. Each design is a section.
 */
class WorkSheet : public Sheet
{
    Q_DECLARE_TR_FUNCTIONS(WorkSheet)

public:
    WorkSheet(const SheetDesigns &designs, const SheetOptions &options, const QSizeF &area);

    DrawingWish wish() const override;
    int pageCount(int section, const QVector<DrawnDesign> &drawn) const override;
    void paint(QPainter &painter, int section, int page,
               const QVector<DrawnDesign> &drawn) const override;

private:
    PageFlow flow(const SheetDesign &design, const DrawnDesign &drawn) const;
    void addHead(PageFlow &flow, const SheetDesign &design) const;
    void addPicture(PageFlow &flow, const SheetDesign &design, const DrawnDesign &drawn) const;
    void addNotes(PageFlow &flow, const SheetDesign &design) const;
    void addRoomToWrite(PageFlow &flow) const;
    void addTrueSize(PageFlow &flow, const DrawnDesign &drawn) const;
    void paintFacts(QPainter &painter, const QRectF &area, const SheetDesign &design,
                    const DrawnDesign &drawn) const;
    void paintRuler(QPainter &painter, const QRectF &area) const;
    QSizeF pictureSize(const DrawnDesign &drawn) const;
    double footerHeight() const;
};
