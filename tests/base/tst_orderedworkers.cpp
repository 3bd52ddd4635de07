#include "base/threads/OrderedWorkers.h"

#include <QtTest>

#include <numeric>
#include <stdexcept>

using namespace std::chrono_literals;

namespace {

struct Job
{
    int number;
    qint64 need;

    qint64 memoryNeed() const { return need; }
};

struct Result
{
    int value;

    qint64 memoryNeed() const { return 1; }
};

using Workers = OrderedWorkers<Job, Result>;

/** What is in memory at a time, and the most that ever was. */
class Gauge
{
public:
    void add(qint64 amount)
    {
        const qint64 now = m_now += amount;
        qint64 most = m_most;
        while (now > most && !m_most.compare_exchange_weak(most, now)) {
        }
    }
    qint64 most() const { return m_most; }

private:
    std::atomic<qint64> m_now{0};
    std::atomic<qint64> m_most{0};
};

std::vector<Job> jobs(int count, qint64 largest)
{
    QRandomGenerator chance(1);
    std::vector<Job> list;
    for (int i = 0; i < count; ++i)
        list.push_back({i, 1 + chance.bounded(int(largest))});
    return list;
}

/** Waits as long as it takes. */
std::optional<Result> take(Workers &workers)
{
    return workers.take(1h);
}

} // namespace

class TestOrderedWorkers : public QObject
{
    Q_OBJECT

private slots:
    void givesTheSameForAnyNumberOfThreads_data()
    {
        QTest::addColumn<int>("threads");
        for (const int threads : {1, 2, 3, 8})
            QTest::addRow("%d", threads) << threads;
    }

    void givesTheSameForAnyNumberOfThreads()
    {
        QFETCH(int, threads);
        constexpr qint64 limit = 100;
        const auto inMemory = std::make_shared<Gauge>();
        const std::vector<Job> list = jobs(2000, limit);
        Workers workers(list,
                        [inMemory](const Job &job, const IAbortCheck &) {
                            inMemory->add(job.need);
                            // Some take far longer than others.
                            int sum = job.number;
                            for (int i = 0; i < (job.number % 50) * 200; ++i)
                                sum = (sum * 31 + i) % 1000003;
                            inMemory->add(-job.need);
                            return Result{job.number % 50 == 0 ? job.number : sum};
                        },
                        {threads, limit});
        for (const Job &job : list) {
            const auto result = take(workers);
            QVERIFY(result);
            if (job.number % 50 == 0)
                QCOMPARE(result->value, job.number);
        }
        QVERIFY2(inMemory->most() <= limit, QByteArray::number(inMemory->most()));
    }

    void throwsWhereTheJobThrew()
    {
        Workers workers(jobs(30, 10),
                        [](const Job &job, const IAbortCheck &) {
                            if (job.number % 7 == 3)
                                throw std::runtime_error(std::to_string(job.number));
                            return Result{job.number};
                        },
                        {3, 1000});
        for (int i = 0; i < 30; ++i) {
            try {
                QCOMPARE(take(workers)->value, i);
                QVERIFY(i % 7 != 3);
            } catch (const std::runtime_error &error) {
                QCOMPARE(QByteArray(error.what()), QByteArray::number(i));
            }
        }
    }

    void runsAlsoWhatExceedsTheMemory()
    {
        std::vector<Job> list = jobs(20, 10);
        list[3].need = list[10].need = list[19].need = 100000;
        const auto inMemory = std::make_shared<Gauge>();
        Workers workers(list,
                        [inMemory](const Job &job, const IAbortCheck &) {
                            inMemory->add(job.need);
                            inMemory->add(-job.need);
                            return Result{job.number};
                        },
                        {4, 50});
        for (int i = 0; i < 20; ++i)
            QCOMPARE(take(workers)->value, i);
        // It went alone.
        QCOMPARE(inMemory->most(), 100000);
    }

    void waitsNoLongerThanAsked()
    {
        const auto gate = std::make_shared<QSemaphore>();
        Workers workers(jobs(1, 1),
                        [gate](const Job &job, const IAbortCheck &) {
                            gate->acquire();
                            return Result{job.number};
                        },
                        {1, 10});
        QVERIFY(!workers.take(0ms));
        gate->release();
        QVERIFY(take(workers));
    }

    void leavesBehindWhatNeverReturns()
    {
        const auto begun = std::make_shared<QSemaphore>();
        const auto gate = std::make_shared<QSemaphore>();
        const auto told = std::make_shared<std::atomic<bool>>(false);
        {
            Workers workers(jobs(5, 1),
                            [=](const Job &job, const IAbortCheck &abort) {
                                begun->release();
                                gate->acquire();
                                *told = abort.abortState() != 0;
                                return Result{job.number};
                            },
                            {2, 10});
            begun->acquire(2);
            workers.abort(0ms);
            QVERIFY(!workers.take(0ms));
        }
        // None of the others is begun, and those two end as soon as they can.
        gate->release(2);
        QTRY_VERIFY(*told);
        QVERIFY(!begun->tryAcquire());
    }
};

QTEST_GUILESS_MAIN(TestOrderedWorkers)
#include "tst_orderedworkers.moc"
