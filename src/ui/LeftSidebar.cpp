#include "ui/LeftSidebar.h"

#include "catalogue/models/IFilterModel.h"
#include "catalogue/records/Project.h"
#include "ui/panels/DirectoriesBox.h"
#include "ui/panels/SavedSearchesBox.h"
#include "ui/panels/TagsBox.h"
#include "widgets/style/WidgetStyles.h"

LeftSidebar::LeftSidebar(QWidget *parent, const QSharedPointer<Project> &project,
                         IFilterModel *filter)
    : GSideBar(parent), m_filter(filter)
{
    setObjectName(QStringLiteral("leftSidebar"));
    setStyleSheet(WidgetStyles::LeftSideBar());
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    m_directories = new DirectoriesBox(this, project, filter);
    connect(m_directories, &DirectoriesBox::filesDropped, this, &LeftSidebar::filesDropped);
    connect(m_directories, &DirectoriesBox::removeSelectedDirectory, this,
            &LeftSidebar::removeSelectedDirectory);
    addBox(m_directories);
    addBox(new TagsBox(this, project, filter));
}

GAction *LeftSidebar::addSavedSearches(SavedSearches *searches)
{
    auto *box = new SavedSearchesBox(this, searches, m_filter);
    addBox(box);
    return box->saveAction();
}

void LeftSidebar::showAllFolders()
{
    m_directories->showAllFolders();
}
