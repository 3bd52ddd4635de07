#pragma once

#include "properties/changes/Observer.h"

#include <QSharedPointer>
#include <QWidget>

class IFilterModel;
class Project;
class QLabel;
class QPushButton;

/** Tells in the middle of the sheet why it has no cards, with a button that leads on. */
class EmptyHint : public QWidget, public Observer
{
    Q_OBJECT

public:
    /** Covers @p sheet, its parent, while no design is shown. @p filter is not owned. */
    EmptyHint(QWidget *sheet, const QSharedPointer<Project> &project, IFilterModel *filter);

    /** Hides the hint while what the sheet will show is still being found out. */
    void setSuspended(bool suspended);

    void observedObjectChanged(const Observable *observable) override;

signals:
    void addFolderRequested();
    /** The user wants to see all designs, whatever the filter is. */
    void allDesignsRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Reason { None, NoFolders, NoDesigns, NoDesignsInFolder, NoMatch };

    void createWidgets();
    void refresh();
    Reason reason() const;
    QString text() const;
    void onButtonClicked();

    QSharedPointer<Project> m_project;
    IFilterModel *m_filter;
    QLabel *m_label = nullptr;
    QPushButton *m_button = nullptr;
    Reason m_reason = Reason::None;
    bool m_suspended = false;
};
