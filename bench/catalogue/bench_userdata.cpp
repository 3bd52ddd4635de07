#include "base/IProgressAbortListener.h"
#include "catalogue/records/IFile.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "LargeCatalogue.h"
#include "properties/changes/BulkOperation.h"
#include "support/Figure.h"

#include <algorithm>
#include <QtTest>

namespace {

/** The most that the main thread works, in milliseconds, before the window gets its turn. */
class LongestPiece : public IProgressAbortListener
{
public:
    void setSteps(int) override {}
    void proceed(const QString &) override {}
    int abortState() const override { return 0; }
    void stayResponsive() override { begin(); }

    void begin()
    {
        const double now = Figure::secondsOf(CLOCK_THREAD_CPUTIME_ID);
        if (m_begun > 0)
            m_longest = std::max(m_longest, (now - m_begun) * 1e3);
        m_begun = now;
    }
    double milliseconds() const { return m_longest; }

private:
    double m_begun = 0;
    double m_longest = 0;
};

} // namespace

/**
 * What the second memory of tags costs the window, with 100,000 designs: processor time of
 * the main thread, in pieces between which the window is painted.
 */
class BenchUserData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void longestPauseAfterTaggingMany();
    void start();
    void longestPauseWhileWordsReturn();

private:
    static constexpr int Tagged = 10000;

    QTemporaryDir m_folder;
    QSharedPointer<Project> m_project = QSharedPointer<Project>::create();
    std::unique_ptr<UserDataMemory> m_memory;
    UserDataMemory::Digest m_digest;
};

void BenchUserData::initTestCase()
{
    fillCatalogue(m_project.data(), 100000);
    m_digest = std::async(std::launch::deferred, [] { return QByteArray("digest"); }).share();
    m_memory = std::make_unique<UserDataMemory>(m_project, m_folder.filePath("user-data.sqlite"));
    m_memory->adopt(m_digest);
    m_memory->absentDesigns(); // waits for it
}

/** From the edit until all is on the disk. */
void BenchUserData::longestPauseAfterTaggingMany()
{
    // It is called more than once, and is to find something to do each time.
    const QString tag = QStringLiteral("new %1").arg(m_project->allTags().size());
    const auto files = m_project->files();
    for (int i = 0; i < Tagged; ++i)
        files.at(i)->tagsProp()->setValueWithoutUndoAndAnnounceChange({tag});
    m_project->addTag(tag);
    LongestPiece piece;
    piece.begin();
    QElapsedTimer all;
    all.start();
    while (all.elapsed() < 3000) {
        QCoreApplication::processEvents();
        piece.begin();
        QThread::usleep(200);
    }
    // Otherwise something else was measured.
    QCOMPARE(UserDataDatabase(m_folder.filePath("user-data.sqlite")).unsaved().designs.size(),
             Tagged);
    QTest::setBenchmarkResult(piece.milliseconds(), QTest::WalltimeMilliseconds);
}

void BenchUserData::start()
{
    m_memory->settle(m_digest);
    QBENCHMARK
    {
        m_memory.reset();
        m_memory =
            std::make_unique<UserDataMemory>(m_project, m_folder.filePath("user-data.sqlite"));
        QVERIFY(!m_memory->applyUnsaved(m_digest));
    }
}

/** A catalogue that got lost is scanned anew. */
void BenchUserData::longestPauseWhileWordsReturn()
{
    const auto files = m_project->files();
    LongestPiece piece;
    QElapsedTimer all;
    all.start();
    BulkOperation bulk;
    piece.begin();
    QVERIFY(m_memory->giveBack(files, piece) > 0);
    piece.begin();
    qInfo("%lld ms in all", all.elapsed());
    QTest::setBenchmarkResult(piece.milliseconds(), QTest::WalltimeMilliseconds);
}

QTEST_GUILESS_MAIN(BenchUserData)
#include "bench_userdata.moc"
