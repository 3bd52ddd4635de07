#pragma once

#include "catalogue/records/IFile.h"

#include <QList>
#include <QSharedPointer>

class QWidget;

/**
 * What a user asks of a whole catalogue in the window: searches by fields, another order,
 * the totals, the duplicates, a contact sheet. Prints figures as window-actions does.
 */
class CatalogueActions
{
public:
    /**
     * @param window not owned, shown, with all designs in its grid
     * @param files those designs
     */
    CatalogueActions(QWidget *window, const QList<QSharedPointer<IFile>> &files);

    void run();

private:
    void measureSearches();
    void measureOrders();
    void measureTotals();
    void measureDuplicates();
    void measureContactSheet();

    QWidget *m_window;
    QList<QSharedPointer<IFile>> m_files;
};
