#pragma once

#include "base/IProgressAbortListener.h"
#include "catalogue/records/IFile.h"
#include "cli/DesignPicture.h"
#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <vector>

/** Paints one picture per design into a folder, on all cores, and counts. */
class ThumbnailRun
{
    Q_DECLARE_TR_FUNCTIONS(ThumbnailRun)

public:
    using Files = QList<QSharedPointer<IFile>>;

    /**
     * @param folder absolute; it is there
     * @param replace whether pictures that are there are painted anew
     * @param catalogue all designs: a picture is named alike whatever else is painted
     */
    ThumbnailRun(const QString &folder, const DesignPicture &picture, bool replace,
                 const Files &catalogue);

    /** Goes on after a failure; ends early when @p progress says so. */
    void paint(const Files &files, IProgressAbortListener &progress);

    /** Tells the failures and the counts. @return the exit status of the process */
    int report() const;

private:
    struct Job;
    struct Painted;

    QString pictureName(const IFile &file) const;
    /** Those of pictures that are to be painted; counts the others. */
    std::vector<Job> jobs(const Files &files);
    static Painted paintOne(const DesignPicture &picture, const Job &job, const IAbortCheck &abort);
    void write(const Job &job, const Painted &painted);

    const QString m_folder;
    const DesignPicture m_picture;
    const bool m_replace;
    QHash<QString, QSet<QByteArray>> m_contents; ///< by file name, case aside
    int m_painted = 0;
    int m_kept = 0;
    QStringList m_failures;
};
