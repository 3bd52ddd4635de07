#pragma once

#include <QObject>
#include <QPointer>

class ActivityList;

/**
 * Says, as long as it lives, what the program is doing: in the status line of the window that
 * its origin belongs to, and nowhere where there is none. On the stack, or a child of what is
 * done. Main thread only.
 */
class StatusActivity : public QObject
{
    Q_OBJECT

public:
    /** @param origin a part of the window, or of a dialog over it */
    StatusActivity(const QObject *origin, const QString &text, QObject *parent = nullptr);
    ~StatusActivity() override;

private:
    QPointer<ActivityList> m_list;
    int m_activity = 0;
};
