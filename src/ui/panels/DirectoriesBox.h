#pragma once

#include "properties/changes/Observer.h"
#include "widgets/controls/GSideBarBox.h"

#include <memory>
#include <QSharedPointer>

class DirectoryModel;
class DragDropHelper;
class GTreeView;
class IFilterModel;
class Project;

/**
 * The panel of the smart folders: choosing one shows the designs in it, and folders may be
 * dropped here.
 */
class DirectoriesBox : public GSideBarBox, public Observer
{
    Q_OBJECT

public:
    /** \a filter is not owned. */
    DirectoriesBox(QWidget *parent, const QSharedPointer<Project> &project, IFilterModel *filter);
    ~DirectoriesBox() override;

    void observedObjectChanged(const Observable *observable) override;

public slots:
    void onItemSelectionChanged();
    void onDirectoryFilterChanged(const QString &path);
    /** Takes back the choice of a folder. */
    void showAllFolders();

signals:
    void filesDropped(const QStringList &folders);
    /** The user wants the shown folder removed. */
    void removeSelectedDirectory();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void initTree();
    void updatePlaceholder();

    QSharedPointer<Project> m_project;
    std::unique_ptr<DirectoryModel> m_model;
    GTreeView *m_tree;
    IFilterModel *m_filter;
    DragDropHelper *m_dropHelper;
};
