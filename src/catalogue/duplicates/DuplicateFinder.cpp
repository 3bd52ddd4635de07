#include "catalogue/duplicates/DuplicateFinder.h"

#include "base/Error.h"
#include "base/threads/ParallelLoop.h"
#include "catalogue/duplicates/DesignBytes.h"
#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"
#include "embroidery/StitchPath.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <numeric>
#include <QHash>
#include <vector>

using namespace Embroidery;

namespace {

constexpr int Unreadable = -1;

/** Sets of those that are linked by a chain of others. */
class Links
{
public:
    explicit Links(int count) : m_next(count) { std::iota(m_next.begin(), m_next.end(), 0); }

    int rootOf(int i)
    {
        while (m_next.at(i) != i) {
            m_next[i] = m_next.at(m_next.at(i));
            i = m_next.at(i);
        }
        return i;
    }

    void link(int a, int b) { m_next[rootOf(a)] = rootOf(b); }

private:
    QVector<int> m_next;
};

bool comesFirst(const DuplicateGroup &a, const DuplicateGroup &b)
{
    if ((a.likeness == DuplicateGroup::SameContent) != (b.likeness == DuplicateGroup::SameContent))
        return a.likeness == DuplicateGroup::SameContent;
    return a.members.first() < b.members.first();
}

} // namespace

DuplicateFinder::DuplicateFinder(const QVector<DuplicateCandidate> &candidates)
    : m_candidates(candidates)
{
}

DuplicateResult DuplicateFinder::run()
{
    DuplicateResult result;
    gatherContents();
    for (const Members &members : qAsConst(m_contents)) {
        if (members.size() > 1)
            result.groups.append({DuplicateGroup::SameContent, members});
    }
    takeFingerprints();
    const QVector<Members> alikes = lookAlikes();
    m_fileCount += std::accumulate(alikes.begin(), alikes.end(), 0,
                                   [](int sum, const auto &set) { return sum + int(set.size()); });
    std::mutex mutex;
    parallelLoop(
        alikes.size(), [this] { return m_cancelled.load(); },
        [&](int i) {
            const QVector<DuplicateGroup> groups = compareAlikes(alikes.at(i));
            const std::lock_guard<std::mutex> lock(mutex);
            result.groups += groups;
        });
    std::sort(result.groups.begin(), result.groups.end(), comesFirst);
    result.unread = int(std::count(m_readable.begin(), m_readable.end(), Unreadable));
    result.cancelled = m_cancelled;
    return result;
}

void DuplicateFinder::gatherContents()
{
    QHash<QByteArray, int> known;
    for (int i = 0; i < m_candidates.size(); ++i) {
        const QByteArray &hash = m_candidates.at(i).hash;
        if (hash.isEmpty())
            continue;
        const int content = known.value(hash, m_contents.size());
        if (content == m_contents.size()) {
            known.insert(hash, content);
            m_contents.append(Members());
        }
        m_contents[content].append(i);
    }
    m_readable.fill(Unreadable, m_contents.size());
    m_fingerprints.resize(m_contents.size());
    m_fileCount = m_contents.size();
}

void DuplicateFinder::takeFingerprints()
{
    // Each call has its own place in these; detached here, they are not on the threads.
    int *readable = m_readable.data();
    StitchFingerprint *fingerprints = m_fingerprints.data();
    parallelLoop(
        m_contents.size(), [this] { return m_cancelled.load(); },
        [&](int content) {
            for (int candidate : m_contents.at(content)) {
                if (const auto path = readPath(candidate)) {
                    readable[content] = candidate;
                    fingerprints[content] = StitchFingerprint(*path);
                    break;
                }
            }
            ++m_filesRead;
        });
}

/** Contents that resemble each other, be it by way of a third. */
QVector<DuplicateFinder::Members> DuplicateFinder::lookAlikes() const
{
    QVector<int> byWidth;
    for (int i = 0; i < m_fingerprints.size(); ++i) {
        if (!m_fingerprints.at(i).isEmpty())
            byWidth.append(i);
    }
    std::sort(byWidth.begin(), byWidth.end(), [this](int a, int b) {
        return m_fingerprints.at(a).width() < m_fingerprints.at(b).width();
    });
    Links links(m_fingerprints.size());
    for (int i = 0; i < byWidth.size() && !m_cancelled; ++i) {
        const StitchFingerprint &one = m_fingerprints.at(byWidth.at(i));
        for (int j = i + 1; j < byWidth.size(); ++j) {
            const StitchFingerprint &other = m_fingerprints.at(byWidth.at(j));
            if (other.width() - one.width() > StitchFingerprint::widthTolerance())
                break;
            if (one.resembles(other))
                links.link(byWidth.at(i), byWidth.at(j));
        }
    }
    QHash<int, Members> sets;
    for (int i = 0; i < m_fingerprints.size(); ++i)
        sets[links.rootOf(i)].append(i);
    QVector<Members> alikes;
    for (const Members &set : qAsConst(sets)) {
        if (set.size() > 1)
            alikes.append(set);
    }
    return alikes;
}

/** Each content is compared with the first one of every group that there is so far. */
QVector<DuplicateGroup> DuplicateFinder::compareAlikes(const Members &alikes)
{
    struct Kin
    {
        StitchPath path;
        Members contents;
        DuplicateGroup::Likeness likeness;
    };
    std::vector<Kin> kins;
    for (int content : alikes) {
        if (m_cancelled)
            break;
        const std::optional<StitchPath> path = readPath(m_readable.at(content));
        ++m_filesRead;
        if (!path)
            continue;
        const auto joined = std::any_of(kins.begin(), kins.end(), [&](Kin &kin) {
            const StitchLikeness likeness = kin.path.compare(*path);
            if (likeness == StitchLikeness::Different)
                return false;
            kin.contents.append(content);
            if (likeness == StitchLikeness::Nearly)
                kin.likeness = DuplicateGroup::NearlySameStitches;
            return true;
        });
        if (!joined)
            kins.push_back({*path, {content}, DuplicateGroup::SameStitches});
    }
    QVector<DuplicateGroup> groups;
    for (const Kin &kin : kins) {
        if (kin.contents.size() > 1)
            groups.append(groupOf(kin.contents, kin.likeness));
    }
    return groups;
}

DuplicateGroup DuplicateFinder::groupOf(const Members &contents,
                                        DuplicateGroup::Likeness likeness) const
{
    DuplicateGroup group{likeness, {}};
    for (int content : contents)
        group.members += m_contents.at(content);
    std::sort(group.members.begin(), group.members.end());
    return group;
}

/** Nothing for a file that is missing, damaged or another one than the catalogue knows. */
std::optional<StitchPath> DuplicateFinder::readPath(int candidate) const
{
    const DuplicateCandidate &design = m_candidates.at(candidate);
    try {
        const QByteArray bytes = DesignBytes::read(design);
        StitchPath path(*EmbroideryIO::readByteArray(design.path, bytes));
        if (!path.isEmpty())
            return path;
    } catch (const Error &) {
        // It is counted among those that could not be read.
    } catch (const IOException &) {
        // Likewise.
    } catch (const std::bad_alloc &) {
        // Likewise: a file may claim to be larger than all memory.
    }
    return {};
}
