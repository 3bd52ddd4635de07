#include "ui/duplicates/DuplicatesDialog.h"

#include "catalogue/duplicates/DuplicateFinder.h"
#include "catalogue/duplicates/DuplicateWords.h"
#include "ui/duplicates/DuplicatesPage.h"
#include "ui/duplicates/SearchPage.h"
#include "widgets/controls/GMessageBox.h"
#include "widgets/controls/StatusActivity.h"

#include <algorithm>
#include <QDir>
#include <QSet>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int ProgressInterval = 100; // milliseconds
constexpr int InitialWidth = 960;
constexpr int InitialHeight = 620;
constexpr int MostPaths = 8; // in one message

DuplicateCandidate candidateOf(const IFile &file)
{
    return {file.absoluteFilePath(), file.contentHash()};
}

QVector<DuplicateCandidate> candidatesOf(const QList<QSharedPointer<IFile>> &files)
{
    QVector<DuplicateCandidate> candidates;
    candidates.reserve(files.size());
    for (const auto &file : files)
        candidates.append(candidateOf(*file));
    return candidates;
}

QString firstOf(const QStringList &lines)
{
    QStringList shown = lines.mid(0, MostPaths);
    if (lines.size() > MostPaths)
        shown.append(DuplicatesDialog::tr("... and %n more", nullptr, lines.size() - MostPaths));
    return shown.join(QLatin1Char('\n'));
}

} // namespace

DuplicatesDialog::DuplicatesDialog(QWidget *parent, QSharedPointer<Project> project,
                                   std::function<bool()> save)
    : QDialog(parent), m_project(std::move(project)), m_save(std::move(save)),
      m_files(m_project->files()), m_pages(new QStackedWidget(this)),
      m_searchPage(new SearchPage(this)), m_page(new DuplicatesPage(this))
{
    setWindowTitle(tr("Duplicates"));
    setWindowModality(Qt::WindowModal);
    resize(InitialWidth, InitialHeight);
    m_pages->addWidget(m_searchPage);
    m_pages->addWidget(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages);
    connect(m_searchPage, &SearchPage::cancelled, this, &DuplicatesDialog::reject);
    connect(m_page, &DuplicatesPage::closed, this, &DuplicatesDialog::reject);
    connect(m_page, &DuplicatesPage::clearingWanted, this, &DuplicatesDialog::clear);
    connect(&m_timer, &QTimer::timeout, this, &DuplicatesDialog::showProgress);
    search();
}

DuplicatesDialog::~DuplicatesDialog()
{
    if (m_finder)
        m_finder->cancel();
    if (m_stops)
        *m_stops = true;
}

void DuplicatesDialog::reject()
{
    // The records of what was moved still have to go; whoever asks twice goes without.
    if (m_stops && !*m_stops && m_work.isRunning()) {
        *m_stops = true;
        return;
    }
    QDialog::reject();
}

void DuplicatesDialog::search()
{
    m_finder = std::make_shared<DuplicateFinder>(candidatesOf(m_files));
    const auto result = std::make_shared<DuplicateResult>();
    m_timer.start(ProgressInterval);
    m_activity = std::make_unique<StatusActivity>(this, tr("Comparing designs..."));
    m_work.run([finder = m_finder, result] { *result = finder->run(); },
               [this, result](const QString &error) { showResult(*result, error); });
}

void DuplicatesDialog::showProgress()
{
    m_searchPage->showProgress(m_finder->filesRead(), m_finder->fileCount());
}

void DuplicatesDialog::showResult(const DuplicateResult &result, const QString &error)
{
    m_timer.stop();
    m_activity.reset();
    if (!error.isEmpty())
        GMessageBox::critical(tr("The designs could not be compared."), error, this);
    m_page->setResult(result, m_files);
    m_pages->setCurrentWidget(m_page);
}

void DuplicatesDialog::clear(const QSharedPointer<IFile> &kept, const Files &others)
{
    const Files all = Files(others) << kept;
    if (areInCatalogue(all) && !confirms(*kept, others))
        return;
    // The catalogue may have been read anew from the disk, also while the question stood.
    if (!areInCatalogue(all)) {
        GMessageBox::warning(tr("The catalogue has changed in the meantime."),
                             tr("Close this window and find the duplicates again."), this);
        return;
    }
    DuplicateWords::join(*m_project, kept, others);
    if (m_save())
        moveToTrash(*kept, others);
    else
        GMessageBox::critical(tr("No file was moved."),
                              tr("The catalogue could not be saved, and with it what was said "
                                 "about these designs."),
                              this);
}

bool DuplicatesDialog::confirms(const IFile &kept, const Files &others)
{
    QStringList paths;
    for (const auto &other : others)
        paths.append(QDir::toNativeSeparators(other->absoluteFilePath()));
    GMessageBox question(
        GMessageBox::Question, this, tr("Move %n file(s) to the trash?", nullptr, others.size()),
        firstOf(paths) + QStringLiteral("\n\n") +
            tr("Kept, with the tags, the notes and the star of all:\n%1")
                .arg(QDir::toNativeSeparators(kept.absoluteFilePath())) +
            QStringLiteral("\n\n") +
            tr("Files can be taken back out of the trash; the catalogue then finds them with the "
               "next rescan."));
    return question.exec() == QMessageBox::Yes;
}

bool DuplicatesDialog::areInCatalogue(const Files &files) const
{
    const auto present = m_project->files();
    const QSet<QSharedPointer<IFile>> set(present.begin(), present.end());
    return std::all_of(files.begin(), files.end(),
                       [&](const auto &file) { return set.contains(file); });
}

void DuplicatesDialog::moveToTrash(const IFile &kept, const Files &others)
{
    m_page->setBusy(true);
    m_activity = std::make_unique<StatusActivity>(this, tr("Moving files to the trash..."));
    m_stops = std::make_shared<std::atomic<bool>>(false);
    const auto outcome = std::make_shared<DuplicateCleaner::Outcome>();
    QStringList paths;
    for (const auto &file : others)
        paths.append(file->absoluteFilePath());
    emit movesToTrash(paths);
    m_work.run(
        [outcome, stops = m_stops, keep = candidateOf(kept), leave = candidatesOf(others)] {
            *outcome = DuplicateCleaner::moveToTrash(keep, leave, [&] { return stops->load(); });
        },
        [this, outcome](const QString &error) { finishMove(*outcome, error); });
}

void DuplicatesDialog::finishMove(const DuplicateCleaner::Outcome &outcome, const QString &error)
{
    m_page->setBusy(false);
    m_activity.reset();
    if (!outcome.moved.isEmpty()) {
        DuplicateWords::removeRecords(*m_project, outcome.moved);
        m_save();
        m_page->removeFiles(outcome.moved);
    }
    QStringList failures = outcome.failures;
    if (!error.isEmpty())
        failures.append(error);
    if (!failures.isEmpty())
        GMessageBox::warning(tr("%n file(s) stayed where they were.", nullptr, failures.size()),
                             firstOf(failures), this);
    if (*m_stops)
        QDialog::reject();
}
