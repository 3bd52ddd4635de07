#pragma once

#include "catalogue/records/IFile.h"

#include <QObject>
#include <QSharedPointer>
#include <QStringList>

class Project;

/**
 * Decides what becomes of files and folders that the user wants to see, from the command
 * line, the file manager or a second start: designs of the catalogue are shown, and what
 * lies in folders that it does not know is offered with its folder. Who owns it does
 * what it asks for before the signal returns.
 */
class PathOpener : public QObject
{
    Q_OBJECT

public:
    /** @param window over which the user is asked */
    PathOpener(QWidget *window, const QSharedPointer<Project> &project);

    /** @param paths absolute */
    void open(const QStringList &paths);

signals:
    /** The user wants these folders in the catalogue. */
    void foldersWanted(const QStringList &folders);
    /** The user wants the catalogue brought into line with the disk. */
    void rescanWanted();
    void folderToShow(const QString &folder);
    void designsToShow(const QList<QSharedPointer<IFile>> &designs);
    /** What the user has to know of paths that cannot be shown. */
    void remark(const QString &text);

private:
    struct Request;

    Request sort(const QStringList &paths) const;
    QString asCatalogued(const QString &path) const;
    bool isSearched(const QString &folder) const;
    QList<QSharedPointer<IFile>> find(const QStringList &paths) const;
    bool wantsFolders(const Request &request);
    bool wantsRescan(const Request &request);

    QWidget *m_window;
    QSharedPointer<Project> m_project;
};
