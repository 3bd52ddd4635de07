#pragma once

#include "catalogue/duplicates/DuplicateCleaner.h"
#include "catalogue/duplicates/DuplicateGroup.h"
#include "catalogue/records/Project.h"
#include "ui/duplicates/BackgroundWork.h"

#include <atomic>
#include <functional>
#include <memory>
#include <QDialog>
#include <QTimer>

class DuplicateFinder;
class StatusActivity;
class DuplicatesPage;
class QStackedWidget;
class SearchPage;

/**
 * Finds the designs of the catalogue that are there more than once and lets the user keep one
 * of each. What he said about the others goes to it before any of them is touched; they go to
 * the trash. All that reads or moves files happens on other threads.
 */
class DuplicatesDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * The search begins at once.
     * @param save gets the catalogue to the disk; false when it could not, which it has told
     */
    DuplicatesDialog(QWidget *parent, QSharedPointer<Project> project, std::function<bool()> save);
    ~DuplicatesDialog() override;

    /** Also ends the search; a move ends first with the file that it is at. */
    void reject() override;

signals:
    /** These files, absolute paths, are about to be moved by the program. */
    void movesToTrash(const QStringList &files);

private:
    using Files = QList<QSharedPointer<IFile>>;

    void search();
    void showProgress();
    void showResult(const DuplicateResult &result, const QString &error);
    void clear(const QSharedPointer<IFile> &kept, const Files &others);
    bool confirms(const IFile &kept, const Files &others);
    bool areInCatalogue(const Files &files) const;
    void moveToTrash(const IFile &kept, const Files &others);
    void finishMove(const DuplicateCleaner::Outcome &outcome, const QString &error);

    const QSharedPointer<Project> m_project;
    const std::function<bool()> m_save;
    const Files m_files;
    std::shared_ptr<DuplicateFinder> m_finder;
    std::shared_ptr<std::atomic<bool>> m_stops;
    std::unique_ptr<StatusActivity> m_activity;
    BackgroundWork m_work;
    QTimer m_timer;
    QStackedWidget *m_pages;
    SearchPage *m_searchPage;
    DuplicatesPage *m_page;
};
