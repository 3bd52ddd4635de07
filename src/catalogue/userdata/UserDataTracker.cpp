#include "catalogue/userdata/UserDataTracker.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds Interval(1000);
// A fraction of a millisecond's work, a small part of a frame.
constexpr int RecordsPerStep = 2000;

} // namespace

UserDataTracker::UserDataTracker(const QSharedPointer<Project> &project) : m_project(project)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(Interval);
    connect(&m_timer, &QTimer::timeout, this, &UserDataTracker::begin);
    connect(&m_step, &QTimer::timeout, this, &UserDataTracker::lookOn);
    connect(project->undoStack(), &QUndoStack::indexChanged, this, &UserDataTracker::noteEdit);
    project->filesProp()->registerObserver(this);
    project->allTagsProp()->registerObserver(this);
    project->smartFoldersProp()->registerObserver(this);
}

void UserDataTracker::observedObjectChanged(const Observable *observable)
{
    // Other records than those that have been looked at: not one may be left out.
    if (observable == m_project->filesProp() && m_next >= 0)
        m_next = 0;
    noteEdit();
}

void UserDataTracker::noteEdit()
{
    if (m_next >= 0)
        m_editedMeanwhile = true;
    else if (!m_timer.isActive())
        m_timer.start();
}

void UserDataTracker::begin()
{
    ++m_pass;
    m_next = 0;
    m_step.start(0);
}

void UserDataTracker::lookOn()
{
    const int count = m_project->filesProp()->count();
    const int to = std::min(m_next + RecordsPerStep, count);
    look(m_next, to);
    m_next = to;
    if (m_next == count)
        finish();
}

void UserDataTracker::collectNow()
{
    m_timer.stop();
    if (m_next < 0)
        ++m_pass;
    look(0, m_project->filesProp()->count());
    m_editedMeanwhile = false;
    finish();
}

void UserDataTracker::look(int from, int to)
{
    const PropertyList::Elements &files = m_project->filesProp()->value();
    for (int i = from; i < to; ++i) {
        if (const auto *file = dynamic_cast<const File *>(files.at(i).data()))
            lookAt(*file);
    }
}

void UserDataTracker::lookAt(const File &file)
{
    const auto known = m_known.find(file.absoluteFilePathProp()->value());
    if (known == m_known.end()) {
        const UserData data = dataOf(file);
        know(data);
        if (!data.isEmpty())
            m_found.designs.append(data);
        return;
    }
    known->pass = m_pass;
    if (known->contentHash == file.contentHashProp()->value() &&
        known->favorite == file.isFavoriteProp()->value() &&
        known->notes == file.notesProp()->value() && known->tags == file.tagsProp()->value())
        return;
    const bool wasEmpty = !known->favorite && known->notes.isEmpty() && known->tags.isEmpty();
    const UserData data = dataOf(file);
    know(data);
    if (!wasEmpty || !data.isEmpty())
        m_found.designs.append(data);
}

void UserDataTracker::finish()
{
    m_step.stop();
    m_next = -1;
    if (m_known.size() > m_project->filesProp()->count()) {
        for (auto known = m_known.begin(); known != m_known.end();) {
            if (known->pass == m_pass) {
                ++known;
                continue;
            }
            m_found.gone.append(known.key());
            known = m_known.erase(known);
        }
    }
    if (m_allTags != m_project->allTags())
        m_found.allTags = m_allTags = m_project->allTags();
    if (m_smartFolders != m_project->smartFolders())
        m_found.smartFolders = m_smartFolders = m_project->smartFolders();
    const UserDataChanges changes = std::exchange(m_found, {});
    if (!changes.isEmpty())
        emit found(changes);
    if (std::exchange(m_editedMeanwhile, false))
        noteEdit();
}

UserDataChanges UserDataTracker::everything()
{
    m_timer.stop();
    m_step.stop();
    m_next = -1;
    m_editedMeanwhile = false;
    m_found = {};
    m_known.clear();
    ++m_pass;
    UserDataChanges all;
    const PropertyList::Elements &files = m_project->filesProp()->value();
    all.designs.reserve(files.size());
    m_known.reserve(files.size());
    for (const auto &element : files) {
        if (const auto *file = dynamic_cast<const File *>(element.data())) {
            all.designs.append(dataOf(*file));
            know(all.designs.constLast());
        }
    }
    all.allTags = m_allTags = m_project->allTags();
    all.smartFolders = m_smartFolders = m_project->smartFolders();
    return all;
}

UserData UserDataTracker::dataOf(const File &file)
{
    return {file.contentHashProp()->value(), file.absoluteFilePathProp()->value(),
            file.tagsProp()->value(), file.notesProp()->value(), file.isFavoriteProp()->value()};
}

void UserDataTracker::know(const UserData &data)
{
    m_known.insert(data.path, {data.contentHash, data.tags, data.notes, data.favorite, m_pass});
}
