#include "catalogue/models/FilterSelectionModel.h"
#include "LargeCatalogue.h"

#include <ctime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

/** What 100,000 records with five threads each cost in time and memory. */
class BenchRecords : public QObject
{
    Q_OBJECT

private slots:
    void costs();
};

class Stage
{
public:
    explicit Stage(const char *name) : m_name(name), m_before(memoryInKilobytes("VmRSS"))
    {
        m_timer.start();
        m_ticks = std::clock();
    }
    ~Stage()
    {
        // On a busy machine only the processor's time tells something.
        const auto busy = qint64(std::clock() - m_ticks) * 1000 / CLOCKS_PER_SEC;
        const qint64 after = memoryInKilobytes("VmRSS");
        qInfo("%-28s %6lld ms, busy %6lld ms, %+8lld KB, peak %lld KB", m_name, m_timer.elapsed(),
              busy, after - m_before, memoryInKilobytes("VmHWM"));
    }

private:
    const char *m_name;
    qint64 m_before;
    QElapsedTimer m_timer;
    std::clock_t m_ticks;
};

void BenchRecords::costs()
{
    constexpr int count = 100000;
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("catalogue.xml"));
    const qint64 before = memoryInKilobytes("VmRSS");
    auto project = QSharedPointer<Project>::create();
    {
        const Stage stage("make");
        fillCatalogue(project.data(), count);
    }
    const qint64 perRecord = (memoryInKilobytes("VmRSS") - before) * 1024 / count;
    qInfo("%lld bytes for each record with five threads", perRecord);
    {
        const Stage stage("save");
        project->save(path);
    }
    qInfo("%lld bytes in the file for each record", QFileInfo(path).size() / count);
    {
        const Stage stage("destroy");
        project.reset();
    }
    project = QSharedPointer<Project>::create();
    {
        const Stage stage("load");
        project->load(path);
    }
    QScopedPointer<FilterSelectionModel> models;
    {
        const Stage stage("watch all");
        models.reset(new FilterSelectionModel(project));
    }
    {
        const Stage stage("load again, watched");
        project->load(path);
    }
    {
        const Stage stage("clear, watched");
        project->clear();
    }
    QCOMPARE(project->files().count(), 0);
    project->load(path);
    {
        const Stage stage("end the watch");
        models.reset();
    }
}

QTEST_MAIN(BenchRecords)
#include "bench_records.moc"
