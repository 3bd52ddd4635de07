#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <utility>

/**
 * What the program is doing, for a window to show; a child of that window. Whoever does
 * something enters it by a StatusActivity. Main thread only.
 */
class ActivityList : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** That of the window that @p origin belongs to, by its parents; null where there is none. */
    static ActivityList *around(const QObject *origin);

    /** What was begun last and is not over; empty when nothing is under way. */
    QString latest() const;

    /** Returns by what it is to be ended. */
    int begin(const QString &text);
    void end(int activity);

signals:
    void changed(const QString &latest);

private:
    QList<std::pair<int, QString>> m_activities;
    int m_begun = 0;
};
