#pragma once

#include "widgets/controls/GSideBar.h"

#include <QSharedPointer>
#include <QStringList>

class DirectoriesBox;
class IFilterModel;
class Project;

/** The side bar of what the grid is narrowed by: folders and tags. */
class LeftSidebar : public GSideBar
{
    Q_OBJECT

public:
    /** @param filter not owned, must outlive the side bar */
    LeftSidebar(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter);

public slots:
    /** Takes back the choice of a folder. */
    void showAllFolders();

signals:
    void filesDropped(const QStringList &paths);
    void removeSelectedDirectory();

private:
    DirectoriesBox *m_directories = nullptr;
};
