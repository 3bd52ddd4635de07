#include "catalogue/sync/Reconnection.h"

#include "base/threads/OrderedWorkers.h"
#include "base/threads/ResponsiveWait.h"
#include "catalogue/scan/DesignBytes.h"
#include <algorithm>
#include <iterator>
#include <QCoreApplication>
#include <QHash>
#include <QMultiHash>
#include <QSet>
#include <QStringList>
#include <vector>

namespace {

using Record = Reconnection::Record;
using Match = Reconnection::Match;

struct HashJob
{
    QString path;
    qint64 size;

    qint64 memoryNeed() const { return size; }
};

/** Empty when the file could not be read; what becomes of it then is told by who reads it next. */
struct Hash
{
    QByteArray hash;

    qint64 memoryNeed() const { return qint64(sizeof *this); }
};

bool bearsUserData(const Record &file)
{
    return file->isFavorite() || !file->notes().isEmpty() || !file->tags().isEmpty();
}

QString fileName(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

bool comesFirst(const Record &a, const Record &b)
{
    return a->absoluteFilePath() < b->absoluteFilePath();
}

/** As many as there are paths, those with the user's work first of all, sorted by path. */
QList<Record> chosen(QList<Record> records, int count)
{
    std::sort(records.begin(), records.end(), comesFirst);
    std::stable_partition(records.begin(), records.end(), bearsUserData);
    records = records.mid(0, count);
    std::sort(records.begin(), records.end(), comesFirst);
    return records;
}

/** Matches the vanished records and the new files of one content. */
QVector<Match> matches(const QList<Record> &records, const QStringList &paths)
{
    QVector<Match> found;
    if (records.size() == 1) {
        for (const QString &path : paths)
            found.append({records.constFirst(), path});
        return found;
    }
    QMultiHash<QString, Record> byName;
    for (const Record &record : records)
        byName.insert(fileName(record->absoluteFilePath()), record);
    QStringList unmatched;
    for (const QString &path : paths) {
        if (const Record namesake = byName.take(fileName(path)))
            found.append({namesake, path});
        else
            unmatched.append(path);
    }
    const QList<Record> rest = chosen(byName.values(), unmatched.size());
    for (int i = 0; i < rest.size(); ++i)
        found.append({rest.at(i), unmatched.at(i)});
    return found;
}

} // namespace

Reconnection::Reconnection(const QList<Record> &vanished, const QVector<FoundFile> &fresh)
    : m_vanished(vanished), m_fresh(fresh)
{
}

QVector<FoundFile> Reconnection::candidates() const
{
    QSet<int> sizes;
    for (const Record &record : m_vanished)
        sizes.insert(record->fileSize());
    QVector<FoundFile> candidates;
    std::copy_if(m_fresh.begin(), m_fresh.end(), std::back_inserter(candidates),
                 [&sizes](const FoundFile &file) { return sizes.contains(int(file.size)); });
    return candidates;
}

QVector<Match> Reconnection::find(IProgressAbortListener &listener,
                                  const WorkerLimits &limits) const
{
    const QVector<FoundFile> files = candidates();
    if (files.isEmpty())
        return {};
    std::vector<HashJob> jobs;
    for (const FoundFile &file : files)
        jobs.push_back({file.path, file.size});
    OrderedWorkers<HashJob, Hash> workers(
        jobs,
        [](const HashJob &job, const IAbortCheck &abort) {
            const DesignBytes file = DesignBytes::read(job.path, abort);
            return Hash{file.state == DesignBytes::Read ? file.hash() : QByteArray()};
        },
        limits);

    QHash<QByteArray, QStringList> pathsByHash;
    listener.setSteps(files.size());
    for (const FoundFile &file : files) {
        listener.proceed(QCoreApplication::translate("Reconnection", "Looking for moved designs"));
        const auto hash = waitResponsively(
            listener, [&workers](auto patience) { return workers.take(patience); });
        if (!hash || listener.abortState() != 0)
            return {};
        pathsByHash[hash->hash].append(file.path);
    }
    pathsByHash.remove(QByteArray());

    QHash<QByteArray, QList<Record>> recordsByHash;
    for (const Record &record : m_vanished)
        recordsByHash[record->contentHash()].append(record);
    QVector<Match> found;
    for (auto paths = pathsByHash.cbegin(); paths != pathsByHash.cend(); ++paths) {
        const auto records = recordsByHash.constFind(paths.key());
        if (records != recordsByHash.constEnd())
            found += matches(*records, *paths);
    }
    std::sort(found.begin(), found.end(),
              [](const Match &a, const Match &b) { return a.path < b.path; });
    return found;
}
