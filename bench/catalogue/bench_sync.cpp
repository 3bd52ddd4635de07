#include "catalogue/records/Project.h"
#include "catalogue/sync/FileSync.h"
#include "embroidery/EmbroideryIO.h"
#include "support/CatalogueFolder.h"
#include "support/DstDesign.h"
#include <QDir>
#include <QtTest>

/** How long a rescan takes when nothing has changed: one look per file, no reading. */
class SyncBenchmark : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rescanUnchanged();

private:
    static constexpr int FolderCount = 100;
    static constexpr int FilesPerFolder = 200;
    static constexpr int DesignCount = 10;

    void addFolder(int number, int fileCount);
    int sync();

    CatalogueFolder m_folder;
    QSharedPointer<Project> m_project;
};

void SyncBenchmark::initTestCase()
{
    m_project = QSharedPointer<Project>::create();
    m_project->setSmartFolders({m_folder.designs()}, QString());
    // Ten designs serve all files: what is measured does not depend on the content,
    // and files that come later share the previews of the first ones.
    addFolder(0, DesignCount);
    sync();
    for (int i = 1; i <= FolderCount; ++i)
        addFolder(i, FilesPerFolder);
    QCOMPARE(sync(), FolderCount * FilesPerFolder);
}

void SyncBenchmark::addFolder(int number, int fileCount)
{
    const QString folder = m_folder.design(QString::number(number));
    QVERIFY(QDir().mkpath(folder));
    for (int i = 0; i < fileCount; ++i) {
        const DstDesign design = DstDesign::square(QByteArray::number(i % DesignCount), 20);
        QVERIFY(design.writeTo(QStringLiteral("%1/%2.dst").arg(folder).arg(i)));
    }
}

int SyncBenchmark::sync()
{
    FileSync sync(m_project, nullptr);
    sync.syncFilesWithDisk(Embroidery::EmbroideryIO::supportedFormats());
    return sync.numChangedFiles();
}

void SyncBenchmark::rescanUnchanged()
{
    QBENCHMARK
    {
        QCOMPARE(sync(), 0);
    }
}

QTEST_MAIN(SyncBenchmark)
#include "bench_sync.moc"
