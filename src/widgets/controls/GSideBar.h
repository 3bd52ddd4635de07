#pragma once

#include <QScrollArea>

class GSettings;
class GSideBarBox;
class QSplitter;

/**
 * A side bar: boxes stacked from top to bottom with handles between them.
 *
 * Its object name is part of the keys that its state is stored under, so it must be set before
 * the state is saved or restored and must never change between versions.
 */
class GSideBar : public QScrollArea
{
    Q_OBJECT

public:
    explicit GSideBar(QWidget *parent = nullptr);

    /**
     * Appends \a box below the others and takes ownership. The boxes share the height by the
     * vertical stretch of their size policies, with 1 for those that have none.
     */
    void addBox(GSideBarBox *box);

    /**
     * Store and fetch the state in the group that \a settings stands in: the heights of the boxes
     * under "<object name>Splitter", what a GSideBarBoxAdvanced shows under
     * "<box object name>-showAdvanced". What is not stored stays as it is, and so do the
     * heights when they were stored for another number of boxes.
     */
    void saveWidgetState(GSettings &settings) const;
    void restoreWidgetState(GSettings &settings);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

private:
    QString splitterKey() const;

    QSplitter *m_splitter;
};
