#pragma once

#include "base/files/FoundFiles.h"
#include "base/files/WildcardPattern.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

class IAbortCheck;
class IProgressListener;

/**
 * Walks a folder tree and lists its files, those of a folder before those of its
 * sub-folders, each by name without regard to case. Wildcards are matched against
 * the absolute path, without regard to case, and "*" runs across "/". A folder that
 * can't be read counts as empty. Links are followed, but no folder is entered on the way
 * to itself. Runs on the calling thread; not to be shared.
 */
class DirectoryScanner
{
    Q_DECLARE_TR_FUNCTIONS(DirectoryScanner)

public:
    DirectoryScanner() = default;
    explicit DirectoryScanner(const QString &filter);
    DirectoryScanner(const QStringList &filters, const QStringList &excludeDirs);

    /** A file must match one of these; with none, all files are returned. */
    void setFilters(const QStringList &filters);
    void setFilters(const QList<WildcardPattern> &filters);

    /** Has only files of these extensions, given without dot, returned. */
    void setExtensions(const QStringList &extensions);

    /** A file that matches one of these is dropped. */
    void setExcludeFilters(const QStringList &filters);
    void setExcludeFilters(const QList<WildcardPattern> &filters);

    /** Bare names of folders that aren't entered. */
    void setExcludeDirs(const QStringList &names);

    void setReturnHidden(bool returnHidden);

    /** Asked once per folder; not owned, may be null. A stop leaves a partial list. */
    void setAbortCheck(IAbortCheck *check);

    /** Told of each folder that is entered; not owned, may be null. */
    void setProgressListener(IProgressListener *listener);

    /**
     * The files with what the walk knows of them, and what it could not look into.
     * Paths begin with @p dir as it is given.
     */
    FoundFiles find(const QString &dir) const;

    /** The paths alone. */
    QStringList findFilesRecursive(const QString &dir) const;
    QList<QFileInfo> fileInfoRecursive(const QString &dir) const;

    /**
     * All entries of one folder, sorted by name. Names are in composed Unicode form where
     * the file system finds the file by it, else as they are stored.
     */
    QList<QFileInfo> allEntries(const QDir &dir) const;

    /** Those entries that are files and pass the filters. */
    QList<QFileInfo> fileEntries(const QList<QFileInfo> &entries) const;
    QList<QFileInfo> fileEntries(const QDir &dir) const;

    /** Those entries that are folders to enter. */
    QList<QFileInfo> dirEntries(const QList<QFileInfo> &entries) const;
    QList<QFileInfo> dirEntries(const QDir &dir) const;

private:
    class Walk;

    static QList<WildcardPattern> stringListToRegExp(const QStringList &wildcards);
    bool isEntered(const QString &name) const;
    bool passesFilters(const QString &path) const;

    QList<WildcardPattern> m_filters;
    QStringList m_excludeDirs;
    QList<WildcardPattern> m_excludeFilters;
    bool m_returnHidden = false;
    IAbortCheck *m_abortCheck = nullptr;
    IProgressListener *m_progressListener = nullptr;
};
