#pragma once

#include "properties/changes/Observer.h"
#include <QList>
#include <QSharedPointer>
#include <QWidget>

class FilterSelectionModel;
class GridGraphicsView;
class GridPreviewScene;
class Project;

/** The grid of cards: view, scene, zoom steps and the way to the models. */
class PreviewBrowser : public QWidget, public Observer
{
    Q_OBJECT

public:
    /** `models` must outlive the browser. */
    PreviewBrowser(QWidget *parent, QSharedPointer<Project> project, FilterSelectionModel *models);
    /** Stores the zoom step in the settings. */
    ~PreviewBrowser() override;

    /** The zoom steps, in per cent. */
    static const QList<int> ScaleFactors;

    void observedObjectChanged(const Observable *observable) override;

public slots:
    void zoomIn();
    void zoomOut();
    /** Scrolls to the first selected card and gives it the keys. */
    void showSelection();
    /** Shows the selected design enlarged, if it is exactly one. */
    void previewSelection();
    void filterChanged();
    /** Marks the selected designs as favourites; takes the mark off when all of them have it. */
    void toggleFavorites();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectModels();
    void readZoom();
    void updateZoomAndKeepSelectionVisible();
    double zoom() const;

    QSharedPointer<Project> m_project;
    FilterSelectionModel *m_models;
    GridGraphicsView *m_view;
    GridPreviewScene *m_scene;
    int m_zoomIndex = 0;
};
