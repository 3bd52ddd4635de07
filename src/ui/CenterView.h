#pragma once

#include <QSharedPointer>
#include <QWidget>

class FilterSelectionModel;
class PreviewBrowser;
class Project;

/** The grid of designs below the strip that narrows it. */
class CenterView : public QWidget
{
    Q_OBJECT

public:
    /** @param model not owned, must outlive the view */
    CenterView(QWidget *parent, const QSharedPointer<Project> &project,
               FilterSelectionModel *model);

public slots:
    void zoomIn();
    void zoomOut();

    /** Selects what the filter shows, not the whole catalogue. */
    void selectAll();

private:
    FilterSelectionModel *m_model;
    PreviewBrowser *m_browser;
};
