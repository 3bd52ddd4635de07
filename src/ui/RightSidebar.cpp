#include "ui/RightSidebar.h"

#include "catalogue/models/ISelectionModel.h"
#include "catalogue/records/IFile.h"
#include "catalogue/records/Project.h"
#include "ui/panels/ColorsBox.h"
#include "ui/panels/PropertiesBox.h"
#include "widgets/style/WidgetStyles.h"

RightSidebar::RightSidebar(QWidget *parent, const QSharedPointer<Project> &project,
                           ISelectionModel *selection)
    : GSideBar(parent), m_properties(new PropertiesBox(this, project)),
      m_colors(new ColorsBox(this))
{
    // Part of a settings key, so that it stays as it is.
    setObjectName(QStringLiteral("RightSideBar"));
    setStyleSheet(WidgetStyles::RightSideBar());
    addBox(m_properties);
    addBox(m_colors);
    connect(selection, &ISelectionModel::selectionChanged, this, &RightSidebar::onSelectionChanged);
}

void RightSidebar::editTags()
{
    m_properties->editTags();
}

void RightSidebar::onSelectionChanged(const QList<QSharedPointer<IFile>> &files)
{
    m_properties->setFiles(files);
    m_colors->setFiles(files);
}
