#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/IOException.h"

#include <QtTest>

using namespace Embroidery;

constexpr int MutationsPerFile = 100;
constexpr int MaximumChanges = 8;

/** Reads the bytes; a design must keep its promises, and any failure be an IOException. */
static void readAnyBytes(const QString &filename, const QByteArray &bytes)
{
    try {
        const auto pattern = EmbroideryIO::readByteArray(filename, bytes);
        QVERIFY(pattern->threadList().size() >= pattern->getThreadCount());
        for (const StitchBlock &block : pattern->asStitchBlock())
            QVERIFY(block.points.size() > 1);
    } catch (const IOException &e) {
        QVERIFY(!e.message.isEmpty());
    }
}

static void addFiles(const QString &folder)
{
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo info(files.next());
        // The folder names the format, since a fuzzer names its files as it likes.
        const QString format = info.dir().dirName();
        QTest::addRow("%s %s", qPrintable(format), qPrintable(info.fileName()))
            << "design." + format << info.filePath();
    }
}

static QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Sound designs that are damaged in many ways, and damaged ones that once did harm. */
class TestDamagedFiles : public QObject
{
    Q_OBJECT

private slots:
    void asTheyAre_data()
    {
        QTest::addColumn<QString>("filename");
        QTest::addColumn<QString>("path");
        addFiles(QStringLiteral(FUZZ_SEEDS_DIR));
        addFiles(QStringLiteral(TEST_DATA_DIR "/damaged"));
    }

    void asTheyAre()
    {
        QFETCH(QString, filename);
        QFETCH(QString, path);
        readAnyBytes(filename, contentOf(path));
    }

    void cut_data()
    {
        QTest::addColumn<QString>("filename");
        QTest::addColumn<QString>("path");
        addFiles(QStringLiteral(FUZZ_SEEDS_DIR));
    }

    void cut()
    {
        QFETCH(QString, filename);
        QFETCH(QString, path);
        const QByteArray bytes = contentOf(path);
        const int step = qMax(1, bytes.size() / 150);
        for (int size = 0; size < bytes.size(); size += step)
            readAnyBytes(filename, bytes.left(size));
    }

    void changed_data() { cut_data(); }

    void changed()
    {
        QFETCH(QString, filename);
        QFETCH(QString, path);
        const QByteArray bytes = contentOf(path);
        QRandomGenerator random(1);
        for (int i = 0; i < MutationsPerFile && !bytes.isEmpty(); ++i) {
            QByteArray damaged = bytes;
            for (int changes = 1 + random.bounded(MaximumChanges); changes > 0; --changes)
                damaged[random.bounded(damaged.size())] = static_cast<char>(random.bounded(256));
            readAnyBytes(filename, damaged);
        }
    }
};

QTEST_APPLESS_MAIN(TestDamagedFiles)
#include "tst_damagedfiles.moc"
