#pragma once

#include "catalogue/models/ISelectionModel.h"
#include "properties/changes/Observer.h"

class Project;

/** Drops designs that leave the catalogue. */
class SelectionModel : public ISelectionModel, public Observer
{
    Q_OBJECT

public:
    explicit SelectionModel(const QSharedPointer<Project> &project);

    void setSelection(const QList<QSharedPointer<IFile>> &files) override;
    void selectAll() override;
    void clearSelection() override;
    QList<QSharedPointer<IFile>> selectedFiles() const override { return m_selection; }

    void observedObjectChanged(const Observable *observable) override;

private:
    QSharedPointer<Project> m_project;
    QList<QSharedPointer<IFile>> m_selection;
};
