#pragma once

#include "catalogue/sync/TagController.h"
#include "properties/changes/Observer.h"
#include "widgets/controls/GSideBarBox.h"

#include <QSharedPointer>

class IFilterModel;
class Project;
class TagListWidget;

/** The panel of all tags: choosing one shows the designs that bear it. */
class TagsBox : public GSideBarBox, public Observer
{
    Q_OBJECT

public:
    /** \a filter is not owned. */
    TagsBox(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter);

    void observedObjectChanged(const Observable *observable) override;

public slots:
    void onTagAdded(const QString &name);
    void onTagRenamed(const QString &oldName, const QString &newName);
    void removeTag();
    void removeUnusedTags();
    void clearTagFilter();

private:
    void createTagList();
    void createButtons();
    void updateTagListWidget();
    bool checkNewTagName(const QString &name);

    QSharedPointer<Project> m_project;
    IFilterModel *m_filter;
    TagController m_controller;
    TagListWidget *m_tagList;
};
