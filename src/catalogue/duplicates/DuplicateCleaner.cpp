#include "catalogue/duplicates/DuplicateCleaner.h"

#include "base/Error.h"
#include "catalogue/duplicates/DesignBytes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

DuplicateCleaner::Outcome DuplicateCleaner::moveToTrash(const DuplicateCandidate &kept,
                                                        const QVector<DuplicateCandidate> &others,
                                                        const std::function<bool()> &stops)
{
    Outcome outcome;
    for (const DuplicateCandidate &other : others) {
        if (stops())
            break;
        try {
            moveOne(kept, other, outcome);
        } catch (const Error &error) {
            outcome.failures.append(QStringLiteral("%1: %2").arg(
                QDir::toNativeSeparators(other.path), error.toString()));
        }
    }
    return outcome;
}

void DuplicateCleaner::moveOne(const DuplicateCandidate &kept, const DuplicateCandidate &other,
                               Outcome &outcome)
{
    try {
        // Before each of them: the drive of the one to keep may have been pulled meanwhile.
        DesignBytes::verify(kept);
    } catch (const Error &error) {
        throw Error(tr("The design to keep is not as it should be. %1").arg(error.toString()));
    }
    DesignBytes::verify(other);
    if (QFileInfo(kept.path).canonicalFilePath() == QFileInfo(other.path).canonicalFilePath())
        throw Error(tr("This is the design to keep itself, by way of a link."));
    QFile file(other.path);
    if (!file.moveToTrash())
        throw Error(tr("It cannot be moved to the trash: %1").arg(file.errorString()));
    outcome.moved.append(other.path);
    outcome.inTrash.append(file.fileName());
}
