#pragma once

#include "catalogue/watch/FolderWatcher.h"
#include "properties/changes/Observer.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QSharedPointer>

class NoticeBar;
class Project;
class StatusActivity;

/**
 * Tells at the top of the window which smart folders have changed, and offers the scan that
 * takes the changes over. It never scans by itself.
 */
class FolderChangeNotice : public QObject, public Observer
{
    Q_OBJECT

public:
    /**
     * @param notices not owned, lives as long as this does
     * @param rescan what the user asks for by the notice
     */
    FolderChangeNotice(QSharedPointer<Project> project, NoticeBar *notices,
                       std::function<void()> rescan, QObject *parent);
    ~FolderChangeNotice() override;

    FolderWatcher *watcher() const { return m_watcher; }

    void observedObjectChanged(const Observable *observable) override;

private:
    void update();
    void tellActivity(bool isLooking);
    QString text(const QStringList &folders) const;

    QSharedPointer<Project> m_project;
    NoticeBar *m_notices;
    std::function<void()> m_rescan;
    FolderWatcher *m_watcher;
    std::unique_ptr<StatusActivity> m_activity;
};
