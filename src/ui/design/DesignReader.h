#pragma once

#include "preview/drawing/SewingOrder.h"

#include <atomic>
#include <QMetaType>
#include <QObject>
#include <QSharedPointer>
#include <QString>

/** A design that was read from a file, or why that could not be done. */
struct ReadDesign
{
    QString path;
    /** Null where the file could not be read. */
    QSharedPointer<const SewingOrder> order;
    /** For the user; empty where the file could be read. */
    QString error;
};

Q_DECLARE_METATYPE(ReadDesign)

/** What DesignLoader has in its thread: reads files, one after the other. */
class DesignReader : public QObject
{
    Q_OBJECT

public:
    /** For the thread that asks: files of older numbers than the latest are passed over. */
    int nextNumber() { return ++m_latest; }

    /** On any thread; never throws. */
    static ReadDesign read(const QString &path);

public slots:
    void load(const QString &path, int number);

signals:
    void loaded(const ReadDesign &design);

private:
    std::atomic<int> m_latest{0};
};
