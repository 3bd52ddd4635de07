#pragma once

#include "catalogue/duplicates/DuplicateGroup.h"
#include "embroidery/StitchFingerprint.h"

#include <atomic>
#include <optional>

namespace Embroidery {
class StitchPath;
}

/**
 * Finds the designs that are there more than once. Those of the same content are known by
 * their hashes; for those of the same stitches one file of each content is read, and those
 * that resemble each other are read once more to compare them stitch by stitch, so that no
 * more than a few designs lie in memory at a time.
 *
 * Works on several threads of its own; lives for one run.
 */
class DuplicateFinder
{
public:
    explicit DuplicateFinder(const QVector<DuplicateCandidate> &candidates);

    /** Returns at the end, so not for the thread of a window. What it throws is no file's fault. */
    DuplicateResult run();

    /** How many files are to be read, as far as is known, and how many have been. Any thread. */
    int fileCount() const { return m_fileCount; }
    int filesRead() const { return m_filesRead; }

    /** The run ends after the files that are just being read. Any thread. */
    void cancel() { m_cancelled = true; }

private:
    using Members = QVector<int>;

    void gatherContents();
    void takeFingerprints();
    QVector<Members> lookAlikes() const;
    QVector<DuplicateGroup> compareAlikes(const Members &alikes);
    std::optional<Embroidery::StitchPath> readPath(int candidate) const;
    DuplicateGroup groupOf(const Members &contents, DuplicateGroup::Likeness likeness) const;

    const QVector<DuplicateCandidate> m_candidates;
    /** Candidates of the same content each, and what is known of its stitches. */
    QVector<Members> m_contents;
    QVector<int> m_readable;
    QVector<Embroidery::StitchFingerprint> m_fingerprints;
    std::atomic<int> m_fileCount{0};
    std::atomic<int> m_filesRead{0};
    std::atomic<bool> m_cancelled{false};
};
