#pragma once

#include "widgets/controls/GToolBar.h"

#include <QColor>

class DesignView;
class FabricButton;
class GAction;
class QLabel;
class QSlider;

/** The tool bar of the design window: previous and next, the zoom, and what is shown. */
class DesignToolBar : public GToolBar
{
    Q_OBJECT

public:
    /** @param view not owned, must outlive the bar */
    explicit DesignToolBar(DesignView *view, QWidget *parent = nullptr);

    /** Number @p index, counted from 0, of @p count designs; negative for none of them. */
    void setPlace(int index, int count);

    void setNeighbours(bool hasPrevious, bool hasNext);

    bool isHoopShown() const;
    bool areJumpsShown() const;
    QColor fabric() const;
    void setFabric(const QColor &color);
    /** The last of its controls. */
    FabricButton *fabricButton() const { return m_fabric; }

signals:
    void previousRequested();
    void nextRequested();
    /** The user wants another fabric, or hoop or jumps shown or hidden. */
    void appearanceChanged();

private:
    void createNavigation();
    void createZoom();
    void createAppearance();
    GAction *createToggle(const QString &text, const QString &toolTip, bool checked);
    void showZoom(double zoom);

    DesignView *m_view;
    GAction *m_previousAction = nullptr;
    GAction *m_nextAction = nullptr;
    GAction *m_hoopAction = nullptr;
    GAction *m_jumpsAction = nullptr;
    QLabel *m_place = nullptr;
    QSlider *m_zoom = nullptr;
    QLabel *m_percent = nullptr;
    FabricButton *m_fabric = nullptr;
};
