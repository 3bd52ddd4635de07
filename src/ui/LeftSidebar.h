#pragma once

#include "widgets/controls/GSideBar.h"

#include <QSharedPointer>
#include <QStringList>

class DirectoriesBox;
class GAction;
class IFilterModel;
class Project;
class SavedSearches;

/** The side bar of what the grid is narrowed by: folders, tags and saved searches. */
class LeftSidebar : public GSideBar
{
    Q_OBJECT

public:
    /** @param filter not owned, must outlive the side bar */
    LeftSidebar(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter);

    /**
     * Adds the box of saved searches, which are not owned, below the others.
     * @return the command that saves the current search, owned by the box
     */
    GAction *addSavedSearches(SavedSearches *searches);

public slots:
    /** Takes back the choice of a folder. */
    void showAllFolders();

signals:
    void filesDropped(const QStringList &paths);
    void removeSelectedDirectory();

private:
    IFilterModel *m_filter;
    DirectoriesBox *m_directories = nullptr;
};
