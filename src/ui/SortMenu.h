#pragma once

#include "catalogue/models/SortOrder.h"

#include <QMenu>

class IFilterModel;
class QActionGroup;

/** What the designs are put in order by, and which way; the choice is remembered. */
class SortMenu : public QMenu
{
    Q_OBJECT

public:
    /** @param filter not owned, must outlive the menu */
    SortMenu(IFilterModel *filter, QWidget *parent);

    /** The choice of the last run, by name when there was none. */
    static SortOrder rememberedOrder();

private:
    void addKeys();
    void addDirections();
    QAction *addChoice(QActionGroup *group, const QString &text, int value);
    void apply();

    IFilterModel *m_filter;
    QActionGroup *m_keys;
    QActionGroup *m_directions;
};
