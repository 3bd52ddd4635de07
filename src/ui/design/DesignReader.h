#pragma once

#include "preview/drawing/ReadDesign.h"

#include <atomic>
#include <QObject>
#include <QString>

/** What DesignLoader has in its thread: reads files, one after the other. */
class DesignReader : public QObject
{
    Q_OBJECT

public:
    /** For the thread that asks: files of older numbers than the latest are passed over. */
    int nextNumber() { return ++m_latest; }

public slots:
    void load(const QString &path, int number);

signals:
    void loaded(const ReadDesign &design);

private:
    std::atomic<int> m_latest{0};
};
