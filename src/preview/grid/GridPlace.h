#pragma once

#include "catalogue/records/IFile.h"
#include <QList>
#include <QPair>
#include <QSharedPointer>

class GridGraphicsView;

/** What a view of the grid shows, to be shown again when the sheet has other cards. */
class GridPlace
{
public:
    /** Takes note of the cards in view. */
    explicit GridPlace(const GridGraphicsView *view);

    /**
     * Puts the first of them that is still on the sheet where it was. A view that stood
     * at the top stays there, and goes there when none of the cards is left.
     */
    void restore(GridGraphicsView *view) const;

private:
    // With the tops of their cards, in pixels of the viewport; none for a view at the top.
    QList<QPair<QSharedPointer<IFile>, int>> m_shown;
};
