#pragma once

#include "widgets/controls/GSideBar.h"

#include <QList>
#include <QSharedPointer>

class ColorsBox;
class IFile;
class ISelectionModel;
class Project;
class PropertiesBox;

/** The side bar of what is selected: its properties and its colours. */
class RightSidebar : public GSideBar
{
    Q_OBJECT

public:
    /** @param selection not owned */
    RightSidebar(QWidget *parent, const QSharedPointer<Project> &project,
                 ISelectionModel *selection);

public slots:
    /** Gives the keys to the field for a new tag. */
    void editTags();
    void onSelectionChanged(const QList<QSharedPointer<IFile>> &files);

private:
    PropertiesBox *m_properties;
    ColorsBox *m_colors;
};
