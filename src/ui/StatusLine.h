#pragma once

#include "catalogue/records/IFile.h"

#include <QList>
#include <QSharedPointer>
#include <QStatusBar>
#include <QTimer>

class ActivityList;
class DesignTotals;
class FilterSelectionModel;
class QLabel;
class QSlider;

/**
 * The line below the panes: how many designs are shown and selected, the stitches and
 * colours of the selection or, without one, of all that is shown, what the program is
 * doing, and the zoom of the grid.
 */
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    /** @param model,activities not owned, must outlive the line */
    StatusLine(QWidget *parent, FilterSelectionModel *model, ActivityList *activities);

    /** The number of the steps that the zoom slider has. */
    void setZoomSteps(int count);

public slots:
    /** Counts stitches and colours anew: the facts of the designs may have changed. */
    void refresh();

    /** The zoom of the grid is @p percent, on or nearest to step @p step. */
    void showZoom(int percent, int step);

signals:
    void zoomStepChosen(int step);

private:
    void createZoom();
    void showActivity(const QString &text);
    void designsChanged();
    void count();
    void showCounted(qint64 stitches, int colors);
    QString shownText() const;
    QString selectedText() const;
    void showText();
    void announceCounts();

    FilterSelectionModel *m_model;
    DesignTotals *m_totals;
    // The selection changes with every move of a rubber band.
    QTimer m_recount;
    QLabel *m_text;
    QLabel *m_activity;
    QSlider *m_zoom;
    QLabel *m_percent;
    int m_shownCount = 0;
    // What users of screen readers have been told of last.
    int m_announcedCount = 0;
    int m_announcedSelected = 0;
    QList<QSharedPointer<IFile>> m_selected;
    qint64 m_stitches = 0;
    int m_colors = 0;
};
