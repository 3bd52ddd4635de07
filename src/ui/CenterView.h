#pragma once

#include <memory>
#include <QList>
#include <QSharedPointer>
#include <QWidget>

class DesignWindow;
class DragDropHelper;
class EmptyHint;
class FilterBar;
class FilterSelectionModel;
class IFile;
class PreviewBrowser;
class Project;
class RememberedValues;

/**
 * The grid of designs below the strip that narrows it. Takes folders that are dropped on it.
 */
class CenterView : public QWidget
{
    Q_OBJECT

public:
    /** @param model,values not owned, must outlive the view */
    CenterView(QWidget *parent, const QSharedPointer<Project> &project, FilterSelectionModel *model,
               RememberedValues *values);
    ~CenterView() override;

    /** The grid, whose zoom the status line shows. */
    PreviewBrowser *browser() const { return m_browser; }

    /** Keeps back what an empty sheet tells while a scan fills it. */
    void setScanning(bool scanning);

public slots:
    void zoomIn();
    void zoomOut();

    /** Gives the keys to the search field. */
    void search();

    /** Selects what the filter shows, not the whole catalogue. */
    void selectAll();

    /** Selects these designs and brings them into view; lifts filters that hide any. */
    void showDesigns(const QList<QSharedPointer<IFile>> &designs);

    /** Shows the design of the current card in a window of its own. */
    void openDesign();

signals:
    /** The user, whose catalogue has no designs, wants to add a folder. */
    void addFolderRequested();
    /** The user wants the designs of all folders. */
    void allFoldersRequested();
    /** Folders that are to be added. */
    void filesDropped(const QStringList &folders);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void showAllDesigns();
    bool showsAll(const QList<QSharedPointer<IFile>> &designs) const;
    void showInWindow(const QSharedPointer<IFile> &file);

    FilterSelectionModel *m_model;
    RememberedValues *m_values;
    FilterBar *m_filterBar;
    PreviewBrowser *m_browser;
    EmptyHint *m_hint;
    // Made for the first design, and used for all that follow.
    std::unique_ptr<DesignWindow> m_designWindow;
    DragDropHelper *m_dropHelper;
};
