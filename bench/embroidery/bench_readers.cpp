#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "writers/DesignWriters.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>
#include <limits>

using namespace Embroidery;

namespace {

constexpr int StitchCount = 50000;
constexpr int Repeats = 25;

/** Rows of stitches of about 3 mm that turn slowly, as a filled area is sewn. */
QSharedPointer<EmbPattern> sewnDesign()
{
    QRandomGenerator random(7);
    const QSharedPointer<EmbPattern> pattern = EmbPattern::create();
    for (int i = 0; i < StitchCount; ++i) {
        const int direction = i / 40 % 2 == 0 ? 1 : -1;
        pattern->stitch(direction * (28 + random.bounded(4)),
                        i % 40 == 0 ? 4 : random.bounded(3) - 1);
    }
    pattern->ensureAllThreadsSetup();
    return pattern;
}

double bestSeconds(const std::function<void()> &action)
{
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < Repeats; ++i) {
        QElapsedTimer timer;
        timer.start();
        action();
        best = qMin(best, timer.nsecsElapsed());
    }
    return static_cast<double>(best) * 1e-9;
}

} // namespace

class BenchReaders : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
};

void BenchReaders::read_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QSharedPointer<EmbPattern> design = sewnDesign();
    for (const QString &format : DesignWriters::formats())
        QTest::newRow(qPrintable(format)) << DesignWriters::write(format, *design);
}

void BenchReaders::read()
{
    QFETCH(QByteArray, bytes);
    const QString filename = QStringLiteral("design.") + QTest::currentDataTag();

    int points = 0;
    const double reading = bestSeconds(
        [&] { points = EmbroideryIO::readByteArray(filename, bytes)->getStitchCount(); });
    QVERIFY(points >= StitchCount);

    volatile unsigned int result = 0;
    const double summing = bestSeconds([&] {
        unsigned int sum = 0;
        for (const char byte : bytes)
            sum += static_cast<unsigned char>(byte);
        result = sum;
    });

    const double megabytes = bytes.size() * 1e-6;
    qInfo("%7d bytes  read %7.1f MB/s, %6.1f million stitches/s  sum %8.1f MB/s  ratio %5.1f",
          int(bytes.size()), megabytes / reading, points * 1e-6 / reading, megabytes / summing,
          reading / summing);
}

QTEST_APPLESS_MAIN(BenchReaders)
#include "bench_readers.moc"
