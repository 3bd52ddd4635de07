#include "catalogue/userdata/UserDataStore.h"

#include "base/files/FileTools.h"
#include "base/GDebug.h"
#include "catalogue/userdata/RememberedTables.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "catalogue/userdata/UserDataError.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace {

constexpr std::chrono::seconds RetryInterval(5);
// So many bursts of edits wait for a disk; more than that are asked for when it is back.
constexpr std::size_t MaximumTasks = 100;

} // namespace

UserDataStore::UserDataStore(const QString &path) : m_path(path)
{
    m_retryTimer.setSingleShot(true);
    m_retryTimer.setInterval(RetryInterval);
    m_worker.moveToThread(&m_thread);
    m_retryTimer.moveToThread(&m_thread);
    connect(&m_retryTimer, &QTimer::timeout, &m_worker, [this] { work(); });
    m_thread.setObjectName(QStringLiteral("UserDataStore"));
    m_thread.start();
    QMetaObject::invokeMethod(&m_worker, [this] { open(); });
}

UserDataStore::~UserDataStore()
{
    QMetaObject::invokeMethod(
        &m_worker,
        [this] {
            work();
            m_retryTimer.stop();
            m_database.reset();
        },
        Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void UserDataStore::setRetryInterval(std::chrono::milliseconds interval)
{
    QMetaObject::invokeMethod(&m_worker, [this, interval] { m_retryTimer.setInterval(interval); });
}

void UserDataStore::record(const UserDataChanges &changes)
{
    tell([changes](UserDataDatabase &database) { database.record(changes); });
}

void UserDataStore::settle(const std::shared_future<QByteArray> &catalogue)
{
    tell([catalogue](UserDataDatabase &database) {
        if (!catalogue.get().isEmpty())
            database.settle(catalogue.get());
    });
}

void UserDataStore::adopt(const UserDataChanges &all,
                          const std::shared_future<QByteArray> &catalogue)
{
    tell([all, catalogue](UserDataDatabase &database) { database.adopt(all, catalogue.get()); });
}

void UserDataStore::adoptOther(const UserDataChanges &all,
                               const std::shared_future<QByteArray> &catalogue)
{
    tell([this, all, catalogue](UserDataDatabase &database) {
        if (database.catalogue() == catalogue.get())
            emit unsavedFound(database.unsaved());
        else
            database.adopt(all, catalogue.get());
    });
}

void UserDataStore::forgetAbsentDesigns()
{
    tell([](UserDataDatabase &database) { database.forgetAbsentDesigns(); });
}

std::optional<UserDataChanges>
UserDataStore::unsavedOf(const std::shared_future<QByteArray> &catalogue)
{
    return ask<std::optional<UserDataChanges>>([&](UserDataDatabase &database) {
        return database.catalogue() == catalogue.get() ? std::make_optional(database.unsaved())
                                                       : std::nullopt;
    });
}

UserDataChanges UserDataStore::lists()
{
    return ask<UserDataChanges>([](UserDataDatabase &database) { return database.lists(); });
}

std::future<QVector<UserData>> UserDataStore::recall(const QVector<UserData> &newcomers)
{
    const auto recalled = std::make_shared<std::promise<QVector<UserData>>>();
    QMetaObject::invokeMethod(&m_worker, [this, newcomers, recalled] {
        QVector<UserData> known;
        answer([&](UserDataDatabase &database) { known = database.recall(newcomers); });
        recalled->set_value(known);
    });
    return recalled->get_future();
}

int UserDataStore::absentDesigns()
{
    return ask<int>([](UserDataDatabase &database) { return database.absentDesigns(); });
}

void UserDataStore::remember(const Remembered &edits)
{
    QMetaObject::invokeMethod(&m_worker, [this] { m_remembering = true; });
    tell([edits](UserDataDatabase &database) { database.remember(edits); });
}

std::optional<Remembered> UserDataStore::remembered()
{
    auto all = ask<std::optional<Remembered>>(
        [](UserDataDatabase &database) { return database.remembered(); });
    if (!all)
        tell([this](UserDataDatabase &database) { emit rememberedFound(database.remembered()); });
    return all;
}

void UserDataStore::removeFile(const QString &path)
{
    tell([path](UserDataDatabase &) { QFile::remove(path); });
}

void UserDataStore::tryAgain()
{
    QMetaObject::invokeMethod(&m_worker, [this] { work(); });
}

QString UserDataStore::rememberingFailure()
{
    QString failure;
    QMetaObject::invokeMethod(
        &m_worker,
        [&] {
            work();
            failure = m_toldFailure;
        },
        Qt::BlockingQueuedConnection);
    return failure;
}

void UserDataStore::tell(Task task)
{
    QMetaObject::invokeMethod(&m_worker, [this, task = std::move(task)] {
        if (!m_unusable)
            m_tasks.push_back(task);
        work();
    });
}

template <class Answer, class Question>
Answer UserDataStore::ask(Question question)
{
    Answer result{};
    QMetaObject::invokeMethod(
        &m_worker,
        [&] { answer([&](UserDataDatabase &database) { result = question(database); }); },
        Qt::BlockingQueuedConnection);
    return result;
}

void UserDataStore::answer(const Task &question)
{
    work();
    // Nobody asks again; a moment's trouble shall not pass for an answer.
    if (!attempt(question))
        attempt(question);
}

void UserDataStore::open()
{
    attempt([](UserDataDatabase &) {});
}

/** Does what is to be done, in its order, until it is done or something fails. */
void UserDataStore::work()
{
    while (!m_tasks.empty()) {
        if (!attempt(m_tasks.front())) {
            if (m_tasks.size() > MaximumTasks) {
                m_tasks.clear();
                m_tasksDropped = true;
            }
            m_retryTimer.start();
            tellFailure();
            return;
        }
        m_tasks.pop_front();
    }
    if (m_tasksDropped) {
        m_tasksDropped = false;
        emit snapshotWanted();
    } else {
        m_remembering = m_remembering && m_unusable;
    }
    tellFailure();
}

void UserDataStore::tellFailure()
{
    const QString failure = m_remembering ? m_failure : QString();
    if (failure != m_toldFailure)
        emit rememberingFailed(m_toldFailure = failure);
}

bool UserDataStore::attempt(const Task &task)
{
    if (m_unusable)
        return true;
    try {
        noticeLoss();
        if (!m_database)
            openDatabase();
        task(*m_database);
        m_failure.clear();
        m_suspected = false;
        return true;
    } catch (const UserDataError &error) {
        logOnce(error.toString());
        // A fresh start knows nothing of what went wrong.
        m_database.reset();
        if (error.kind() == UserDataError::Damaged && isReadable()) {
            // A page that the disk did not hand out looks like a damaged one: look again.
            if (!std::exchange(m_suspected, true) || replaceDamaged())
                return attempt(task);
            m_unusable = true;
        }
        m_unusable = m_unusable || error.kind() == UserDataError::Newer;
    } catch (const std::exception &error) {
        logOnce(QString::fromLocal8Bit(error.what()));
    }
    return m_unusable;
}

void UserDataStore::openDatabase()
{
    auto database = std::make_unique<UserDataDatabase>(m_path);
    m_opened = FileStamp::of(m_path);
    if (!m_salvaged.isEmpty())
        database->remember(m_salvaged);
    m_salvaged = {};
    m_database = std::move(database);
}

void UserDataStore::logOnce(const QString &failure)
{
    if (failure != m_failure)
        gWarning("UserDataStore") << failure;
    m_failure = failure;
}

/** Whoever has removed the file shall not have what is edited from now on go nowhere. */
void UserDataStore::noticeLoss()
{
    if (!m_database)
        return;
    const FileStamp now = FileStamp::of(m_path);
    const bool other =
        now.exists() && (now.inode != m_opened.inode || now.device != m_opened.device);
    if (!other && !FileStamp::isMissing(m_path))
        return;
    m_database.reset();
    m_tasksDropped = true;
}

bool UserDataStore::isReadable() const
{
    try {
        FileTools::readAll(m_path);
        return true;
    } catch (const Error &) {
        return false;
    }
}

/** Moves the file out of the way; false when it would be found damaged again and again. */
bool UserDataStore::replaceDamaged()
{
    if (std::exchange(m_replaced, true))
        return false;
    const QFileInfo file(m_path);
    const QString stem = file.path() + QLatin1Char('/') + file.completeBaseName() +
                         QStringLiteral(".damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = stem + QLatin1Char('.') + file.suffix();
    for (int i = 2; FileStamp::of(aside).exists(); ++i)
        aside = QStringLiteral("%1-%2.%3").arg(stem).arg(i).arg(file.suffix());
    if (!QFile::rename(m_path, aside))
        return false;
    // It belongs to the file that was there.
    QFile::remove(m_path + QStringLiteral("-journal"));
    m_salvaged = RememberedTables::salvage(aside);
    m_tasksDropped = true;
    return true;
}
