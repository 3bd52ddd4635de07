#include "catalogue/userdata/UserDataDatabase.h"
#include "faults/FaultyProcess.h"
#include "faults/Profile.h"
#include "support/DstDesign.h"

#include <cerrno>
#include <csignal>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <QWidget>

namespace {

constexpr int PatienceMs = 30000;
constexpr int Designs = 3;
/** Makes a catalogue of more than the 16 KB that a buffer takes. */
constexpr int ManyDesigns = 30;
/** Stands for a connection to the display that breaks. */
constexpr int DisplayGone = 0;

/** What xdotool prints; nothing when it fails. */
QByteArray xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    // The window of this test answers meanwhile.
    const QDeadlineTimer deadline(PatienceMs);
    while (!deadline.hasExpired() && process.state() != QProcess::NotRunning &&
           !process.waitForFinished(5))
        QCoreApplication::processEvents();
    return process.exitCode() == 0 ? process.readAllStandardOutput().trimmed() : QByteArray();
}

} // namespace

/** The organizer on a screen with another window, at the hands of somebody with a keyboard. */
class OnScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void failedSaveKeepsThemAll_data();
    void failedSaveKeepsThemAll();
    void brokenFromOutside();
    void endsLoseNothing_data();
    void endsLoseNothing();
    void fullDiskAtTheEnd();
    void removedTagsStayRemoved();
    void undoneNotesAreEachTheirOwn();
    void scanGoesOnBesideAnUnreadableDesign();

private:
    void run(const QString &program, const QStringList &arguments);
    void scan(int designs);
    void open(int designs);
    void click(int x, int y);
    void setStars();
    void goElsewhere();
    void comeBack();
    void fail(int error);
    int starsIn(const QByteArray &catalogue) const { return catalogue.count("<is_favorite>true"); }
    int stars() const { return starsIn(m_profile->catalogue()); }
    int unsavedEdits() const;
    /** Than the main window. */
    bool isAnotherActive() const
    {
        const QByteArray active = xdotool({"getactivewindow"});
        return !active.isEmpty() && active != m_window.toLatin1();
    }
    bool isRunning() const { return m_organizer->state() == QProcess::Running; }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<Profile> m_profile;
    std::unique_ptr<FaultyProcess> m_organizer;
    QString m_window; ///< as the display numbers it
    QWidget m_elsewhere;
};

void OnScreenTest::init()
{
    m_root = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/XXXXXX"));
    m_profile = std::make_unique<Profile>(m_root->path(), QStringLiteral("user"));
    m_elsewhere.setGeometry(1100, 700, 100, 100);
    m_elsewhere.show();
}

void OnScreenTest::cleanup()
{
    if (m_organizer && isRunning()) {
        m_organizer->kill();
        m_organizer->waitForFinished();
    }
    m_organizer.reset();
    m_profile.reset();
}

void OnScreenTest::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(m_profile->environment());
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished() && process.exitCode() == 0, process.readAllStandardError());
}

void OnScreenTest::scan(int designs)
{
    for (int i = 0; i < designs; ++i)
        QVERIFY(DstDesign::square("Rose", 20 + i)
                    .writeTo(m_profile->designs() + QStringLiteral("/%1.dst").arg(i)));
    run(CLI, {QStringLiteral("scan"), m_profile->designs()});
}

void OnScreenTest::open(int designs)
{
    scan(designs);
    m_organizer = std::make_unique<FaultyProcess>(*m_profile, Fault{FaultPlan::Never, 1, true});
    m_organizer->start(QStringLiteral(ORGANIZER), QStringList());
    QVERIFY(m_organizer->waitForStarted());
    const QStringList search{"search",
                             "--onlyvisible",
                             "--all",
                             "--pid",
                             QString::number(m_organizer->processId()),
                             "--name",
                             "^Hoopline Organizer$"};
    // A window that closes meanwhile, as the splash screen does, ends the search.
    QTRY_VERIFY_WITH_TIMEOUT(!(m_window = xdotool(search)).isEmpty(), PatienceMs);
}

/** In the main window, which gets the keyboard. */
void OnScreenTest::click(int x, int y)
{
    xdotool({"windowactivate", "--sync", m_window});
    xdotool(
        {"mousemove", "--window", m_window, QString::number(x), QString::number(y), "click", "1"});
}

/** Of all designs. */
void OnScreenTest::setStars()
{
    click(512, 400);
    xdotool({"key", "ctrl+a", "f"});
}

/** To whichever of its windows takes the keyboard. */
void OnScreenTest::comeBack()
{
    xdotool({"windowactivate", m_window});
    QTRY_VERIFY_WITH_TIMEOUT(!m_elsewhere.isActiveWindow(), PatienceMs);
}

void OnScreenTest::goElsewhere()
{
    xdotool({"windowactivate", "--sync", QString::number(m_elsewhere.winId())});
    QVERIFY(QTest::qWaitForWindowActive(&m_elsewhere));
}

/** From now on, for as long as nothing else is said. */
void OnScreenTest::fail(int error)
{
    m_organizer->plan()->calls = 0;
    m_organizer->plan()->struck = false;
    m_organizer->plan()->error = error;
}

int OnScreenTest::unsavedEdits() const
{
    UserDataDatabase database(m_profile->data(QStringLiteral("user-data.sqlite")));
    return database.unsaved().designs.size();
}

void OnScreenTest::failedSaveKeepsThemAll_data()
{
    QTest::addColumn<int>("designs");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("dialog");
    QTest::newRow("full disk, small catalogue") << Designs << ENOSPC << false;
    QTest::newRow("full disk, large catalogue") << ManyDesigns << ENOSPC << false;
    QTest::newRow("full disk beneath a dialog") << Designs << ENOSPC << true;
    QTest::newRow("nothing may be written") << Designs << EROFS << false;
}

void OnScreenTest::failedSaveKeepsThemAll()
{
    QFETCH(int, designs);
    QFETCH(int, error);
    QFETCH(bool, dialog);
    open(designs);
    if (QTest::currentTestFailed())
        return;
    const QByteArray before = m_profile->catalogue();
    QCOMPARE(before.size() > 16384, designs == ManyDesigns);
    fail(error);
    setStars();
    if (dialog) {
        // The preferences.
        xdotool({"key", "alt+f", "Up", "Up", "Return"});
        QTRY_VERIFY_WITH_TIMEOUT(isAnotherActive(), PatienceMs);
    }
    goElsewhere();
    QTRY_VERIFY_WITH_TIMEOUT(m_organizer->plan()->struck, PatienceMs);
    QCOMPARE(m_profile->catalogue(), before);
    comeBack();
    goElsewhere();
    QVERIFY(isRunning());
    QCOMPARE(m_profile->catalogue(), before);
    // There is room again.
    fail(FaultPlan::Never);
    comeBack();
    goElsewhere();
    QTRY_COMPARE_WITH_TIMEOUT(stars(), designs, PatienceMs);
    QVERIFY(isRunning());
}

void OnScreenTest::brokenFromOutside()
{
    open(Designs);
    if (QTest::currentTestFailed())
        return;
    setStars();
    goElsewhere();
    QTRY_COMPARE_WITH_TIMEOUT(stars(), Designs, PatienceMs);
    const QByteArray broken = m_profile->catalogue().chopped(20);
    // Later than the other one, by a clock of whole seconds.
    QFile file(m_profile->catalogueFile());
    QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(broken.size()) &&
            file.setFileTime(QDateTime::currentDateTime().addSecs(2),
                             QFileDevice::FileModificationTime));
    file.close();
    comeBack();
    goElsewhere();
    const QDir data(m_profile->data());
    QTRY_COMPARE_WITH_TIMEOUT(data.entryList({"hoopline-organizer.damaged-*.xml"}).size(), 1,
                              PatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(stars(), Designs, PatienceMs);
    QVERIFY(isRunning());
}

void OnScreenTest::endsLoseNothing_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("inGoodOrder");
    QTest::newRow("asked to end") << SIGTERM << true;
    QTest::newRow("interrupted") << SIGINT << true;
    QTest::newRow("terminal closed") << SIGHUP << true;
    QTest::newRow("killed") << SIGKILL << false;
    QTest::newRow("crashed") << SIGSEGV << false;
    QTest::newRow("display gone") << DisplayGone << false;
}

// An hour of work in one window, which has never lost the keyboard.
void OnScreenTest::endsLoseNothing()
{
    QFETCH(int, end);
    QFETCH(bool, inGoodOrder);
    open(Designs);
    if (QTest::currentTestFailed())
        return;
    setStars();
    QTRY_COMPARE_WITH_TIMEOUT(unsavedEdits(), Designs, PatienceMs);
    QCOMPARE(stars(), 0);
    if (end == DisplayGone)
        xdotool({"windowkill", m_window});
    else
        kill(pid_t(m_organizer->processId()), end);
    QVERIFY(m_organizer->waitForEnd());
    QCOMPARE(m_organizer->exitStatus() == QProcess::NormalExit && m_organizer->status() == 0,
             inGoodOrder);
    QCOMPARE(stars(), inGoodOrder ? Designs : 0);
    run(CLI, {QStringLiteral("scan")});
    QCOMPARE(stars(), Designs);
}

void OnScreenTest::fullDiskAtTheEnd()
{
    open(Designs);
    if (QTest::currentTestFailed())
        return;
    setStars();
    QTRY_COMPARE_WITH_TIMEOUT(unsavedEdits(), Designs, PatienceMs);
    fail(ENOSPC);
    m_organizer->terminate();
    // Of all its windows the one that has the keyboard is the question.
    QTRY_VERIFY_WITH_TIMEOUT(m_organizer->plan()->struck, PatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(isAnotherActive(), PatienceMs);
    QVERIFY(isRunning());
    QCOMPARE(stars(), 0);
    fail(FaultPlan::Never);
    // "Try again".
    xdotool({"key", "Return"});
    QVERIFY(m_organizer->waitForEnd());
    QCOMPARE(m_organizer->status(), 0);
    QCOMPARE(stars(), Designs);
}

void OnScreenTest::removedTagsStayRemoved()
{
    scan(Designs);
    const QString design = m_profile->designs() + QStringLiteral("/0.dst");
    for (const char *command : {"add", "remove"})
        run(CLI, {"tag", command, "unused", design});
    const auto isThere = [this] { return m_profile->catalogue().contains("<string>unused"); };
    QVERIFY(isThere());
    open(Designs);
    if (QTest::currentTestFailed())
        return;
    // Below the tags, and two buttons back from their list.
    click(100, 540);
    xdotool({"key", "shift+Tab", "shift+Tab", "space"});
    QTRY_VERIFY_WITH_TIMEOUT(isAnotherActive(), PatienceMs);
    xdotool({"key", "alt+y"});
    QTRY_VERIFY_WITH_TIMEOUT(!isAnotherActive(), PatienceMs);
    xdotool({"key", "ctrl+q"});
    QVERIFY(m_organizer->waitForEnd());
    QVERIFY(!isThere());
}

void OnScreenTest::undoneNotesAreEachTheirOwn()
{
    scan(2);
    run(EDITOR, {"begin"});
    const auto words = Profile::wordsIn(m_profile->catalogue());
    QVERIFY(words["0.dst"] != words["1.dst"]);
    open(2);
    if (QTest::currentTestFailed())
        return;
    click(512, 400);
    xdotool({"key", "ctrl+a"});
    // The notes.
    click(908, 250);
    xdotool({"key", "ctrl+z", "x"});
    QTRY_COMPARE_WITH_TIMEOUT(unsavedEdits(), 2, PatienceMs);
    xdotool({"key", "ctrl+z", "ctrl+z", "ctrl+q"});
    QVERIFY(m_organizer->waitForEnd());
    QCOMPARE(Profile::wordsIn(m_profile->catalogue()), words);
}

void OnScreenTest::scanGoesOnBesideAnUnreadableDesign()
{
    open(Designs);
    if (QTest::currentTestFailed())
        return;
    const QDir designs(m_profile->designs());
    // Cannot be read, whoever reads it.
    QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), designs.filePath("locked.dst")));
    QVERIFY(DstDesign::square("Rose", 60).writeTo(designs.filePath("new.dst")));
    click(512, 400);
    xdotool({"key", "F5"});
    QTRY_VERIFY_WITH_TIMEOUT(m_profile->catalogue().contains("new.dst"), PatienceMs);
    // It is told, and then the window shows what is changed.
    QTRY_VERIFY_WITH_TIMEOUT(isAnotherActive(), PatienceMs);
    xdotool({"key", "Return"});
    QTRY_VERIFY_WITH_TIMEOUT(!isAnotherActive(), PatienceMs);
    setStars();
    goElsewhere();
    QTRY_COMPARE_WITH_TIMEOUT(stars(), Designs + 2, PatienceMs);
}

QTEST_MAIN(OnScreenTest)
#include "tst_onscreen.moc"
