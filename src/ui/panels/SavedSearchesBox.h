#pragma once

#include "widgets/controls/GSideBarBox.h"

#include <functional>

class GAction;
class IFilterModel;
class QLabel;
class QListWidget;
class QListWidgetItem;
class SavedSearches;

/** The panel of saved searches: choosing one searches by it. */
class SavedSearchesBox : public GSideBarBox
{
    Q_OBJECT

public:
    /** Neither of the two is owned. */
    SavedSearchesBox(QWidget *parent, SavedSearches *searches, IFilterModel *filter);

    /** Saves the search of the filter under a name to be entered; off while there is none to save.
     */
    GAction *saveAction() const { return m_saveAction; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createList();
    void createButtons();
    void updateList();
    void updateState();
    void applySelected();
    void saveCurrent();
    void renameSelected();
    void removeSelected();
    void onItemChanged(QListWidgetItem *item);
    void showContextMenu(const QPoint &position);
    void attempt(const std::function<void()> &change);
    QListWidgetItem *selectedItem() const;
    QListWidgetItem *itemOfQuery(const QString &query) const;

    SavedSearches *m_searches;
    IFilterModel *m_filter;
    GAction *m_saveAction;
    GAction *m_renameAction;
    GAction *m_removeAction;
    QListWidget *m_list;
    QLabel *m_hint;
    bool m_updating = false;
};
