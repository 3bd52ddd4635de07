#include "cli/ScanOutput.h"

void ScanOutput::tellFile(const char *action, const QString &path, const QString &to)
{
    if (!m_asJson) {
        QString line = QLatin1String(action) + QLatin1Char(' ') + path;
        if (!to.isEmpty())
            line += QStringLiteral(" -> ") + to;
        m_output.writeLine(Console::printable(line));
        return;
    }
    m_json.beginObject();
    m_json.member("action", QLatin1String(action));
    m_json.member("file", path);
    if (!to.isEmpty())
        m_json.member("to", to);
    m_json.endObject();
    m_json.endLine();
}

void ScanOutput::tellUnreadable(const QList<UnreadableFile> &files)
{
    for (const UnreadableFile &file : files)
        tellProblem("unreadable", file.path, file.reason);
}

void ScanOutput::tellSkipped(const QVector<SkippedEntry> &entries)
{
    for (const SkippedEntry &entry : entries)
        tellProblem("skipped", entry.path,
                    entry.kind == SkippedEntry::UndecodableName
                        ? tr("left out, the name is no valid text")
                        : entry.reason);
}

void ScanOutput::tellProblem(const char *action, const QString &path, const QString &reason)
{
    if (!m_asJson) {
        Console::reportError(reason.contains(path) ? reason
                                                   : QStringLiteral("%1: %2").arg(path, reason));
        return;
    }
    m_json.beginObject();
    m_json.member("action", QLatin1String(action));
    m_json.member("file", path);
    m_json.member("reason", reason);
    m_json.endObject();
    m_json.endLine();
}

void ScanOutput::tellCounts(const SyncCounts &done)
{
    if (done.unreached > 0)
        Console::reportError(
            tr("Stopped; %n new design(s) are still to be read.", nullptr, done.unreached));
    SyncCounts counts = done;
    counts.added -= done.unreached;
    writeCounts(QStringLiteral("added %1, updated %2, moved %3, removed %4, unreadable %5"),
                counts);
}

void ScanOutput::tellPlan(const SyncCounts &plan)
{
    writeCounts(QStringLiteral("would add %1, update %2, move %3, remove %4, unreadable %5"), plan);
}

void ScanOutput::writeCounts(const QString &text, const SyncCounts &counts)
{
    if (!m_asJson) {
        m_output.writeLine(text.arg(counts.added)
                               .arg(counts.updated)
                               .arg(counts.reconnected)
                               .arg(counts.removed)
                               .arg(counts.unreadable));
        return;
    }
    m_json.beginObject();
    m_json.member("added", counts.added);
    m_json.member("updated", counts.updated);
    m_json.member("moved", counts.reconnected);
    m_json.member("removed", counts.removed);
    m_json.member("unreadable", counts.unreadable);
    m_json.member("unreached", counts.unreached);
    m_json.endObject();
    m_json.endLine();
}
