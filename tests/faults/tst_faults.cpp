#include "base/Error.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "faults/FaultyProcess.h"
#include "faults/Profile.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>
#include <QDir>
#include <QElapsedTimer>
#include <QtConcurrent>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QtTest>

namespace {

enum class Task { Scan, Edit, Start };

/** Far fewer than there are, and more than there are when nothing is seen. */
constexpr int FewestCalls = 15;
constexpr int MostComplaintsTold = 20;

QString programOf(Task task)
{
    switch (task) {
    case Task::Scan:
        return QStringLiteral(CLI);
    case Task::Edit:
        return QStringLiteral(EDITOR);
    case Task::Start:
        return QStringLiteral(ORGANIZER);
    }
    Q_UNREACHABLE();
}

QStringList argumentsOf(Task task)
{
    switch (task) {
    case Task::Scan:
        return {QStringLiteral("scan")};
    case Task::Edit:
        return {QStringLiteral("work")};
    case Task::Start:
        return {};
    }
    Q_UNREACHABLE();
}

QString without(const QStringList &all, const QStringList &some)
{
    QStringList rest;
    std::copy_if(all.begin(), all.end(), std::back_inserter(rest),
                 [&some](const QString &name) { return !some.contains(name); });
    return rest.join(QLatin1Char(' '));
}

/** A process that has met a fault, and one after it that has met none. */
struct Outcome
{
    Fault fault;
    int calls = 0; ///< those that could have failed
    bool struck = false;
    bool ended = false;
    bool killed = false;
    int status = 0;
    QByteArray said;
    QByteArray catalogue;
    int nextStatus = 0;
    QByteArray nextSaid;
    QByteArray finalCatalogue;
    QStringList files;
    QMap<QString, QByteArray> previews;
    int absentDesigns = 0;
};

} // namespace

Q_DECLARE_METATYPE(Task)

/**
 * The programs at work on a disk that fails, or dying themselves, at each single call for it:
 * whatever happens, what a user relies on is there after the next run, and nothing else.
 */
class FaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loseNothing_data();
    void loseNothing();

private:
    void run(const Profile &profile, const QString &program, const QStringList &arguments) const;
    Outcome meet(Task task, const Fault &fault) const;
    QString complaintAbout(Task task, const Outcome &outcome) const;
    QString wordsMissing(Task task, const Outcome &outcome) const;

    QTemporaryDir m_root{QDir::tempPath() + QStringLiteral("/XXXXXX")};
    std::unique_ptr<Profile> m_template;
    std::unique_ptr<Profile> m_unsaved;
    Profile::Words m_before;
    QMap<Task, Outcome> m_reference;
    QMap<Task, Profile::Words> m_after; ///< by the reference
};

void FaultsTest::run(const Profile &profile, const QString &program,
                     const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(profile.environment());
    process.start(program, arguments);
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError());
}

void FaultsTest::initTestCase()
{
    // Nobody looks at the window, and its fonts would take a tenth of the time.
    const QString fonts = m_root.filePath(QStringLiteral("fonts.conf"));
    QVERIFY(Profile::write(fonts, "<fontconfig/>"));
    qputenv("FONTCONFIG_FILE", QFile::encodeName(fonts));
    m_template = std::make_unique<Profile>(m_root.path(), QStringLiteral("before"));
    const QDir designs(m_template->designs());
    for (int i = 0; i < 5; ++i)
        QVERIFY(DstDesign::square("Rose", 20 + i)
                    .writeTo(designs.filePath(QStringLiteral("%1.dst").arg(i))));
    run(*m_template, QStringLiteral(CLI), {QStringLiteral("scan"), designs.path()});
    run(*m_template, QStringLiteral(EDITOR), {QStringLiteral("begin")});
    m_before = Profile::wordsIn(m_template->catalogue());
    m_unsaved = std::make_unique<Profile>(m_root.path(), QStringLiteral("unsaved"));
    QVERIFY(m_unsaved->copyFrom(*m_template));
    run(*m_unsaved, QStringLiteral(EDITOR), {QStringLiteral("leave")});

    // What a scan has to do: one is new, one was sewn anew, one has moved, one is gone.
    QVERIFY(DstDesign::square("Rose", 40).writeTo(designs.filePath("new.dst")));
    QVERIFY(DstDesign::square("Rose", 41).writeTo(designs.filePath("2.dst")));
    QVERIFY(CatalogueFolder::setDate(designs.filePath("2.dst"),
                                     QDateTime::currentDateTime().addSecs(10)));
    QVERIFY(QFile::rename(designs.filePath("3.dst"), designs.filePath("moved.dst")));
    QVERIFY(QFile::remove(designs.filePath("4.dst")));
}

Outcome FaultsTest::meet(Task task, const Fault &fault) const
{
    static std::atomic<int> profiles{0};
    const Profile profile(m_root.path(), QString::number(++profiles));
    profile.copyFrom(task == Task::Start ? *m_unsaved : *m_template);

    Outcome outcome;
    outcome.fault = fault;
    {
        FaultyProcess process(profile, fault);
        if (task == Task::Start)
            process.startAndEnd(programOf(task));
        else
            process.start(programOf(task), argumentsOf(task));
        outcome.ended = process.waitForEnd();
        outcome.killed = process.wasKilled();
        outcome.status = process.status();
        outcome.said = process.readAllStandardOutput();
        outcome.said += process.readAllStandardError();
        outcome.calls = process.plan()->calls;
        outcome.struck = process.plan()->struck;
    }
    outcome.catalogue = profile.catalogue();

    QProcess next;
    next.setProcessEnvironment(profile.environment());
    next.start(QStringLiteral(CLI), {QStringLiteral("scan")});
    next.waitForFinished();
    outcome.nextStatus = next.exitStatus() == QProcess::NormalExit ? next.exitCode() : -1;
    outcome.nextSaid = next.readAllStandardOutput() + next.readAllStandardError();
    outcome.finalCatalogue = profile.catalogue();
    outcome.files = profile.files();
    outcome.previews = profile.previews();
    outcome.absentDesigns =
        UserDataDatabase(profile.data(QStringLiteral("user-data.sqlite"))).absentDesigns();
    return outcome;
}

void FaultsTest::loseNothing_data()
{
    QTest::addColumn<Task>("task");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("lasting");
    const QPair<const char *, Task> tasks[] = {
        {"scan", Task::Scan}, {"edit", Task::Edit}, {"start", Task::Start}};
    for (const auto &[name, task] : tasks) {
        const auto row = [&, name = name](const char *what) -> QTestData & {
            return QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(name, what)));
        };
        row("a disk that gets full") << task << ENOSPC << true;
        row("a slip of the disk") << task << EIO << false;
        row("a kill") << task << FaultPlan::Kill << false;
    }
}

void FaultsTest::loseNothing()
{
    QFETCH(Task, task);
    QFETCH(int, error);
    QFETCH(bool, lasting);
    const Outcome reference = meet(task, {error, 0, lasting});
    QCOMPARE(reference.status, 0);
    QCOMPARE(reference.absentDesigns, 1);
    QVERIFY(reference.calls >= FewestCalls);
    if (!m_reference.contains(task)) {
        m_reference[task] = reference;
        m_after[task] = Profile::wordsIn(reference.finalCatalogue);
    }
    QElapsedTimer timer;
    timer.start();
    QVector<Fault> faults;
    for (int number = 1; number <= reference.calls; ++number)
        faults.append({error, number, lasting});
    const std::function<Outcome(const Fault &)> met = [this, task](const Fault &fault) {
        return meet(task, fault);
    };
    // Most of the time a process waits for another.
    QThreadPool::globalInstance()->setMaxThreadCount(3 * QThread::idealThreadCount());
    const auto outcomes = QtConcurrent::blockingMapped<QVector<Outcome>>(faults, met);
    const qint64 elapsed = timer.elapsed();
    int complaints = 0;
    int struck = 0;
    for (const Outcome &outcome : outcomes) {
        struck += outcome.struck;
        const QString complaint = complaintAbout(task, outcome);
        if (complaint.isEmpty())
            continue;
        if (++complaints <= MostComplaintsTold)
            qWarning("call %d: %s\n%s\n%s", outcome.fault.number, qPrintable(complaint),
                     outcome.said.constData(), outcome.nextSaid.constData());
    }
    qInfo("%d calls, %d of them failed, %.1f s", reference.calls, struck, double(elapsed) / 1000);
    QCOMPARE(complaints, 0);
}

QString FaultsTest::complaintAbout(Task task, const Outcome &outcome) const
{
    const Outcome &reference = m_reference[task];
    const bool mayDie = outcome.fault.error == FaultPlan::Kill;
    if (!outcome.ended)
        return QStringLiteral("it does not end");
    if (outcome.killed != (mayDie && outcome.struck))
        return QStringLiteral("it crashes");
    if (outcome.nextStatus != 0)
        return QStringLiteral("the next run ends with %1").arg(outcome.nextStatus);
    const QString missing = wordsMissing(task, outcome);
    if (!missing.isEmpty())
        return missing;
    if (outcome.files != reference.files)
        return QStringLiteral("there are too many files, %1, or too few, %2")
            .arg(without(outcome.files, reference.files), without(reference.files, outcome.files));
    if (outcome.previews != reference.previews)
        return QStringLiteral("a preview differs");
    if (outcome.absentDesigns < reference.absentDesigns)
        return QStringLiteral("%1 absent designs are remembered").arg(outcome.absentDesigns);
    return QString();
}

QString FaultsTest::wordsMissing(Task task, const Outcome &outcome) const
{
    const Profile::Words after = m_after[task];
    Profile::Words then;
    Profile::Words now;
    try {
        then = Profile::wordsIn(outcome.catalogue);
        now = Profile::wordsIn(outcome.finalCatalogue);
    } catch (const Error &error) {
        return error.toString();
    }
    if (task == Task::Scan && !outcome.killed && outcome.status == 0 && then != after)
        return QStringLiteral("it has not done what it says");
    if (now.keys() != after.keys())
        return QStringLiteral("there are ") + QStringList(now.keys()).join(QLatin1Char(' '));
    const QByteArrayList lines = outcome.said.split('\n');
    const int strike = lines.indexOf("struck");
    // A disk that fails once is tried again; what fails for good is not relied on.
    const bool triesAgain = !outcome.fault.lasting && outcome.fault.error != FaultPlan::Kill;
    for (auto design = now.cbegin(); design != now.cend(); ++design) {
        const QString &name = design.key();
        const int at = lines.indexOf(name.toUtf8());
        const bool isSafe = task != Task::Edit || (at >= 0 && (at < strike || triesAgain));
        if (design.value() != after[name] && (isSafe || design.value() != m_before.value(name)))
            return QStringLiteral("%1 has '%2'").arg(name, design.value());
    }
    return QString();
}

// Under the eyes of a sanitizer a thousand runs take longer than QtTest has patience for.
[[maybe_unused]] static const bool patient = qputenv("QTEST_FUNCTION_TIMEOUT", "1200000");

QTEST_GUILESS_MAIN(FaultsTest)
#include "tst_faults.moc"
