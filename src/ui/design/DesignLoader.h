#pragma once

#include "ui/design/DesignReader.h"

#include <memory>
#include <QObject>
#include <QThread>

/**
 * Reads designs in a thread of its own, so that a slow drive holds nothing up. Only
 * the latest file that was asked for is answered.
 */
class DesignLoader : public QObject
{
    Q_OBJECT

public:
    explicit DesignLoader(QObject *parent = nullptr);
    /** Waits a moment for a file that is being read; a drive that hangs is left to itself. */
    ~DesignLoader() override;

    void load(const QString &path);

signals:
    void loaded(const ReadDesign &design);

private:
    std::unique_ptr<QThread> m_thread;
    DesignReader *m_reader;
    QString m_wanted;
};
