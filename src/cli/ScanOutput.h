#pragma once

#include "catalogue/sync/ScanReport.h"
#include "catalogue/sync/SyncCounts.h"
#include "catalogue/sync/UnreadableFile.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVector>

/** What a scan, or its rehearsal, did: lines for people, or JSON objects, a line each. */
class ScanOutput
{
    Q_DECLARE_TR_FUNCTIONS(ScanOutput)

public:
    explicit ScanOutput(bool asJson) : m_asJson(asJson), m_json(m_output) {}

    /** @param action "add" for instance @param to where the file is now, if it moved */
    void tellFile(const char *action, const QString &path, const QString &to = {});

    /** Names them with their reasons: people on standard error. */
    void tellUnreadable(const QList<UnreadableFile> &files);
    void tellSkipped(const QVector<SkippedEntry> &entries);

    /** The last line of a scan. */
    void tellCounts(const SyncCounts &done);
    /** The last line of a rehearsal. */
    void tellPlan(const SyncCounts &plan);

    /** False when any of the output was lost, which is told. */
    bool flush() { return m_output.flush(); }

private:
    void tellProblem(const char *action, const QString &path, const QString &reason);
    void writeCounts(const QString &text, const SyncCounts &counts);

    const bool m_asJson;
    StandardOutput m_output;
    JsonWriter m_json;
};
