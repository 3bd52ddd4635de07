#pragma once

#include "base/UsageEventSink.h"
#include <chrono>
#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/**
 * Counts what one synchronisation of the catalogue meets, and reports the
 * figures at its end. Names of files stay here; only numbers are reported.
 * Main thread.
 */
class FileSyncTracking
{
public:
    /** @param sink takes the figures at the end; empty when nobody wants them */
    explicit FileSyncTracking(UsageEventSink sink = {});

    /** Starts afresh. @param filters patterns of the files that can be read, "*.pes" */
    void beginSync(const QStringList &filters);

    /** Counts the known design formats among @p files and picks those that can be read. */
    void logFileCountByExtension(const QStringList &files);

    /** The same for one file; true when it can be read. */
    bool logFile(const QString &file);

    /** Whether a file of this name can be read. */
    bool isSupported(const QString &file) const;

    /** The names among those logged that can be read. */
    QStringList supportedFiles() const { return m_supportedFiles; }

    void fileFormatError();
    void beginRenderFile();
    void endRenderFile(int stitchCount);
    /** The same for a design that was painted elsewhere. */
    void endRenderFile(int stitchCount, std::chrono::nanoseconds paintingTime);

    /** Hands the three events of a synchronisation to the sink. */
    void endSync(int smartFolderCount, int fileCount);

private:
    UsageEventSink m_sink;
    QHash<QString, int> m_fileCounts;
    QSet<QString> m_supportedExtensions;
    QStringList m_supportedFiles;
    int m_renderedFiles = 0;
    int m_errors = 0;
    qint64 m_renderedStitches = 0;
    qint64 m_renderTime = 0; ///< milliseconds
    QElapsedTimer m_syncTimer;
    QElapsedTimer m_renderTimer;
};
