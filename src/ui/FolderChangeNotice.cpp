#include "ui/FolderChangeNotice.h"

#include "catalogue/records/Project.h"
#include "ui/NoticeBar.h"
#include "widgets/controls/StatusActivity.h"

#include <QDir>
#include <QGuiApplication>

namespace {

constexpr int MostNames = 3; // in one notice

QString noticeId()
{
    return QStringLiteral("folders");
}

/** Their last names; their paths where two have the same. */
QStringList namesOf(const QStringList &folders)
{
    QStringList names;
    for (const QString &folder : folders)
        names.append(QDir(folder).dirName());
    if (names.removeDuplicates() == 0 && !names.contains(QString()))
        return names;
    names.clear();
    for (const QString &folder : folders)
        names.append(QDir::toNativeSeparators(folder));
    return names;
}

} // namespace

FolderChangeNotice::FolderChangeNotice(QSharedPointer<Project> project, NoticeBar *notices,
                                       std::function<void()> rescan, QObject *parent)
    : QObject(parent), m_project(std::move(project)), m_notices(notices),
      m_rescan(std::move(rescan)), m_watcher(new FolderWatcher(this))
{
    connect(m_watcher, &FolderWatcher::changedFoldersChanged, this, &FolderChangeNotice::update);
    connect(m_watcher, &FolderWatcher::lookingThrough, this, &FolderChangeNotice::tellActivity);
    // A drive may have been plugged in meanwhile.
    connect(qApp, &QGuiApplication::applicationStateChanged, m_watcher,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_watcher->lookAgain();
            });
    m_project->smartFoldersProp()->registerObserver(this);
    m_watcher->setFolders(m_project->smartFolders());
}

FolderChangeNotice::~FolderChangeNotice() = default;

void FolderChangeNotice::tellActivity(bool isLooking)
{
    if (!isLooking)
        m_activity.reset();
    else if (!m_activity)
        m_activity = std::make_unique<StatusActivity>(this, tr("Looking through the folders..."));
}

void FolderChangeNotice::observedObjectChanged(const Observable *)
{
    m_watcher->setFolders(m_project->smartFolders());
}

void FolderChangeNotice::update()
{
    const QStringList folders = m_watcher->changedFolders();
    if (folders.isEmpty())
        m_notices->withdraw(noticeId());
    else
        m_notices->tell(
            {noticeId(), Notice::Information, text(folders), {{tr("Rescan"), m_rescan}}});
}

QString FolderChangeNotice::text(const QStringList &folders) const
{
    const QStringList names = namesOf(folders);
    if (folders.size() == 1)
        return tr("The folder %1 has changed.").arg(names.first());
    if (folders.size() > MostNames)
        return tr("%n folders have changed.", nullptr, folders.size());
    const QString separator = tr(", ", "between the names of folders");
    const QString &last = names.last();
    return tr("The folders %1 and %2 have changed.")
        .arg(names.mid(0, names.size() - 1).join(separator), last);
}
