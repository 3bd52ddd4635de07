#pragma once

#include "catalogue/sync/ScanReport.h"

#include <functional>
#include <QObject>

class NoticeBar;
class QWidget;

/** Tells at the top of the window what a scan has done; the list behind it can be shown. */
class ScanNotice : public QObject
{
    Q_OBJECT

public:
    /**
     * @param notices not owned, lives as long as this does
     * @param rescan is offered when there is something left to be read
     * @param window the parent, over which boxes are shown
     */
    ScanNotice(NoticeBar *notices, std::function<void()> rescan, QWidget *window);

    /** Takes the last line away; a new scan begins. */
    void withdraw();

    /**
     * Tells of a scan that is over. A box names the files that the disk did not give, as
     * nothing is known of these.
     */
    void tell(const ScanReport &report);

private:
    static QString summary(const ScanReport &report);
    void showList();
    void tellFailures(const QStringList &failures);

    NoticeBar *m_notices;
    std::function<void()> m_rescan;
    QWidget *m_window;
    ScanReport m_report;
};
