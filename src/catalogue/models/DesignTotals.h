#pragma once

#include "catalogue/records/IFile.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QTimer>

/**
 * Adds up stitches and colours of as many designs as there may be, a slice at a time,
 * so that the window stays fluid meanwhile. A colour that several designs have counts
 * once. Main thread only.
 */
class DesignTotals : public QObject
{
    Q_OBJECT

public:
    explicit DesignTotals(QObject *parent = nullptr);

    /** Begins anew, and tells by counted() when it is done, at once if they are few. */
    void count(const QList<QSharedPointer<IFile>> &files);

    bool isCounting() const { return m_timer.isActive(); }

signals:
    void counted(qint64 stitches, int colors);

private:
    void countSlice();
    void add(const IFile &file);

    QList<QSharedPointer<IFile>> m_files;
    int m_next = 0;
    qint64 m_stitches = 0;
    QSet<quint32> m_colors;
    QTimer m_timer;
};
