#pragma once

#include "preview/sheets/SheetDesign.h"

#include <initializer_list>

/**
 * The designs of a sheet, in the order of its pages. Those of the catalogue are looked at
 * only when they are asked for: a page shows a few of a hundred thousand. Main thread only.
 */
class SheetDesigns
{
public:
    SheetDesigns() = default;
    // Not explicit: a list of designs is all that it takes.
    SheetDesigns(const QVector<SheetDesign> &designs);
    SheetDesigns(std::initializer_list<SheetDesign> designs)
        : SheetDesigns(QVector<SheetDesign>(designs))
    {
    }
    static SheetDesigns of(const QList<QSharedPointer<IFile>> &files);

    int size() const { return m_order.size(); }
    SheetDesign at(int index) const;
    QString folderAt(int index) const;
    QVector<SheetDesign> mid(int first, int count) const;

    /** Puts those of each folder together. @return how many there are in each */
    QVector<int> groupByFolder();

private:
    QString pathAt(int index) const;

    // One of both is empty.
    QVector<SheetDesign> m_designs;
    QList<QSharedPointer<IFile>> m_files;
    QVector<int> m_order; ///< indexes in either
};
