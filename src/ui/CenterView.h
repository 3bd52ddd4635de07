#pragma once

#include <QList>
#include <QSharedPointer>
#include <QWidget>

class EmptyHint;
class FilterBar;
class FilterSelectionModel;
class IFile;
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

    /** Keeps back what an empty sheet tells while a scan fills it. */
    void setScanning(bool scanning);

public slots:
    void zoomIn();
    void zoomOut();

    /** Selects what the filter shows, not the whole catalogue. */
    void selectAll();

    /** Selects these designs and brings them into view; lifts filters that hide any. */
    void showDesigns(const QList<QSharedPointer<IFile>> &designs);

signals:
    /** The user, whose catalogue has no designs, wants to add a folder. */
    void addFolderRequested();
    /** The user wants the designs of all folders. */
    void allFoldersRequested();

private:
    void showAllDesigns();
    bool showsAll(const QList<QSharedPointer<IFile>> &designs) const;

    FilterSelectionModel *m_model;
    FilterBar *m_filterBar;
    PreviewBrowser *m_browser;
    EmptyHint *m_hint;
};
