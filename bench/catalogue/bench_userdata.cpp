#include "catalogue/records/IFile.h"
#include "catalogue/userdata/UserDataDatabase.h"
#include "catalogue/userdata/UserDataMemory.h"
#include "LargeCatalogue.h"

#include <algorithm>
#include <QtTest>

/** What the second memory of tags costs the window, with 100,000 designs. */
class BenchUserData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void longestPauseAfterTaggingMany();
    void start();
    void giveBack();

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

/** How long the main thread is held at once, from the edit until all is on the disk. */
void BenchUserData::longestPauseAfterTaggingMany()
{
    // It is called more than once, and is to find something to do each time.
    const QString tag = QStringLiteral("new %1").arg(m_project->allTags().size());
    const auto files = m_project->files();
    for (int i = 0; i < Tagged; ++i)
        files.at(i)->tagsProp()->setValueWithoutUndoAndAnnounceChange({tag});
    m_project->addTag(tag);
    qint64 longest = 0;
    QElapsedTimer all;
    all.start();
    while (all.elapsed() < 3000) {
        QElapsedTimer turn;
        turn.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, turn.nsecsElapsed());
        QThread::usleep(200);
    }
    // Otherwise something else was measured.
    QCOMPARE(UserDataDatabase(m_folder.filePath("user-data.sqlite")).unsaved().designs.size(),
             Tagged);
    QTest::setBenchmarkResult(double(longest) / 1e6, QTest::WalltimeMilliseconds);
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

void BenchUserData::giveBack()
{
    const auto files = m_project->files();
    QBENCHMARK
    {
        QVERIFY(m_memory->giveBack(files) > 0);
    }
}

QTEST_GUILESS_MAIN(BenchUserData)
#include "bench_userdata.moc"
