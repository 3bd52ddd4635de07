#include "catalogue/sync/FileSyncTracking.h"

#include <utility>

namespace {

// More than can be read, so that the maker sees which formats people hold.
constexpr const char *KnownExtensions[] = {"pes", "pec", "dst", "xxx",  "exp", "sew", "jef",
                                           "hus", "emb", "cnd", "art",  "csd", "vp3", "vip",
                                           "pcs", "dsz", "tap", "exp+", "shv"};

// A filter begins with "*.".
constexpr int FilterPrefix = 2;

QString extension(const QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

} // namespace

FileSyncTracking::FileSyncTracking(UsageEventSink sink) : m_sink(std::move(sink))
{
    for (const char *known : KnownExtensions)
        m_fileCounts.insert(QString::fromLatin1(known), 0);
}

void FileSyncTracking::beginSync(const QStringList &filters)
{
    m_supportedExtensions.clear();
    for (const QString &filter : filters)
        m_supportedExtensions.insert(filter.mid(FilterPrefix).toLower());
    m_supportedFiles.clear();
    for (int &count : m_fileCounts)
        count = 0;
    m_renderedFiles = m_errors = 0;
    m_renderedStitches = m_renderTime = 0;
    m_syncTimer.start();
}

void FileSyncTracking::logFileCountByExtension(const QStringList &files)
{
    for (const QString &file : files)
        logFile(file);
}

bool FileSyncTracking::logFile(const QString &file)
{
    const QString suffix = extension(file);
    const auto count = m_fileCounts.find(suffix);
    if (count != m_fileCounts.end())
        ++*count;
    if (!m_supportedExtensions.contains(suffix))
        return false;
    m_supportedFiles.append(file);
    return true;
}

bool FileSyncTracking::isSupported(const QString &file) const
{
    return m_supportedExtensions.contains(extension(file));
}

void FileSyncTracking::fileFormatError()
{
    ++m_errors;
}

void FileSyncTracking::beginRenderFile()
{
    ++m_renderedFiles;
    m_renderTimer.start();
}

void FileSyncTracking::endRenderFile(int stitchCount)
{
    endRenderFile(stitchCount, std::chrono::nanoseconds(m_renderTimer.nsecsElapsed()));
}

void FileSyncTracking::endRenderFile(int stitchCount, std::chrono::nanoseconds paintingTime)
{
    m_renderedStitches += stitchCount;
    m_renderTime += std::chrono::round<std::chrono::milliseconds>(paintingTime).count();
}

void FileSyncTracking::endSync(int smartFolderCount, int fileCount)
{
    if (!m_sink)
        return;
    const int syncTime = int(m_syncTimer.elapsed());
    m_sink(QStringLiteral("hl project info"),
           {{QStringLiteral("num smartfolders"), smartFolderCount},
            {QStringLiteral("num files"), fileCount}});
    m_sink(QStringLiteral("hl loader info"),
           {{QStringLiteral("num files"), int(m_supportedFiles.size())},
            {QStringLiteral("num errors"), m_errors},
            {QStringLiteral("rendered files"), m_renderedFiles},
            {QStringLiteral("rendered stitches"), m_renderedStitches},
            {QStringLiteral("render time"), m_renderTime},
            {QStringLiteral("sync time"), syncTime}});
    QHash<QString, QVariant> counts;
    for (auto count = m_fileCounts.cbegin(); count != m_fileCounts.cend(); ++count)
        counts.insert(count.key(), count.value());
    m_sink(QStringLiteral("hl found file types"), counts);
}
