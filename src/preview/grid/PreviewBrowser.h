#pragma once

#include "properties/changes/Observer.h"
#include <QList>
#include <QSharedPointer>
#include <QWidget>

class FilterSelectionModel;
class GridGraphicsView;
class GridPreviewScene;
class IFile;
class Project;

/** The grid of cards: view, scene, zoom steps and the way to the models. */
class PreviewBrowser : public QWidget, public Observer
{
    Q_OBJECT

public:
    /** @p models must outlive the browser. */
    PreviewBrowser(QWidget *parent, QSharedPointer<Project> project, FilterSelectionModel *models);
    /** Stores the zoom step in the settings. */
    ~PreviewBrowser() override;

    /** The zoom steps, in per cent. */
    static const QList<int> ScaleFactors;

    /** Which of ScaleFactors the commands go on from. */
    int zoomIndex() const { return m_zoomIndex; }
    /** In per cent; pinching leads off the steps. */
    int zoomPercent() const;

    void observedObjectChanged(const Observable *observable) override;

public slots:
    void zoomIn();
    void zoomOut();
    /** Shows the cards in the size that they have by default. */
    void zoomToDefault();
    /** Selects no design. */
    void selectNone();
    /** Scrolls to the first selected card and gives it the keys. */
    void showSelection();

    /** Zooms to the step at @p index of ScaleFactors, which must be one of them. */
    void setZoomIndex(int index);
    /** Shows the selected design enlarged, if it is exactly one. */
    void previewSelection();
    void filterChanged();
    /** Asks for the design of the current card, or the one that is selected, to be opened. */
    void openCurrent();
    /** Shows the file of that design in the file manager. */
    void revealCurrent();
    /**
     * Makes the card of this design the current one, in view and selected in the place of
     * another one; the selection of several stays as it is.
     */
    void showDesign(const QSharedPointer<IFile> &file);
    /** Another folder is shown from its top. */
    void directoryChanged();
    /** Marks the selected designs as favourites; takes the mark off when all of them have it. */
    void toggleFavorites();

signals:
    /** The user wants a closer look at the design. */
    void openRequested(const QSharedPointer<IFile> &file);
    /** zoomPercent() or zoomIndex() is another one. */
    void zoomChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    QSharedPointer<IFile> currentFile() const;
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
