#include "embroidery/EmbPattern.h"
#include "embroidery/EmbroideryIO.h"
#include "embroidery/support/FormatBytes.h"
#include "embroidery/support/HusCompressor.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>
#include <limits>

using namespace Embroidery;
using namespace TestSupport;

namespace {

constexpr int StitchCount = 50000;
constexpr int Repeats = 25;

struct Delta
{
    int x;
    int y;
};

/** Rows of stitches of about 3 mm that turn slowly, as a filled area is sewn. */
QVector<Delta> sewnDesign()
{
    QRandomGenerator random(7);
    QVector<Delta> deltas;
    for (int i = 0; i < StitchCount; ++i) {
        const int direction = i / 40 % 2 == 0 ? 1 : -1;
        deltas.append(
            {direction * (28 + random.bounded(4)), i % 40 == 0 ? 4 : random.bounded(3) - 1});
    }
    return deltas;
}

QByteArray pairs(const QVector<Delta> &deltas)
{
    QByteArray bytes;
    for (const Delta &delta : deltas)
        bytes.append(static_cast<char>(delta.x)).append(static_cast<char>(-delta.y));
    return bytes;
}

/** The balanced ternary digits of `value`, the weight 1 first. */
QVector<int> ternary(int value)
{
    QVector<int> digits;
    for (int i = 0; i < 5; ++i) {
        const int digit = ((value % 3) + 4) % 3 - 1;
        digits.append(digit);
        value = (value - digit) / 3;
    }
    return digits;
}

QByteArray dstFile(const QVector<Delta> &deltas)
{
    // For each weight the byte and the bit of the positive sense; the negative one is next to it.
    constexpr int xPlaces[5][2] = {{0, 0}, {1, 0}, {0, 2}, {1, 2}, {2, 2}};
    constexpr int yPlaces[5][2] = {{0, 6}, {1, 6}, {0, 4}, {1, 4}, {2, 4}};
    QByteArray bytes(512, ' ');
    for (const Delta &delta : deltas) {
        int record[3] = {0, 0, 3};
        const auto put = [&record](int value, const int(&places)[5][2]) {
            const QVector<int> digits = ternary(value);
            for (int i = 0; i < 5; ++i) {
                if (digits[i] != 0)
                    record[places[i][0]] |= 1 << (places[i][1] + (digits[i] < 0 ? 1 : 0));
            }
        };
        put(delta.x, xPlaces);
        put(delta.y, yPlaces);
        for (const int byte : record)
            bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

QByteArray pecBlockOf(const QVector<Delta> &deltas)
{
    PecParts parts;
    parts.stitches.clear();
    for (const Delta &delta : deltas) {
        parts.stitches.append(static_cast<char>(delta.x & 0x7F));
        parts.stitches.append(static_cast<char>(delta.y & 0x7F));
    }
    parts.stitches.append("\xFF\0", 2);
    return pecBlock(parts);
}

QByteArray husFileOf(const QVector<Delta> &deltas)
{
    QByteArray x;
    QByteArray y;
    for (const Delta &delta : deltas) {
        x.append(static_cast<char>(delta.x));
        y.append(static_cast<char>(-delta.y));
    }
    return husFile(deltas.size(), {1}, husCompress(QByteArray(deltas.size(), '\x80')),
                   husCompress(x), husCompress(y));
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
    const QVector<Delta> design = sewnDesign();
    QTest::newRow("pes") << "#PES0001" + le32(12) + pecBlockOf(design);
    QTest::newRow("pec") << "#PEC0001" + pecBlockOf(design);
    QTest::newRow("dst") << dstFile(design);
    QTest::newRow("xxx") << xxxFile({0x10A020}, pairs(design) + QByteArray("\x7F\x7F\2\4", 4));
    QTest::newRow("exp") << pairs(design);
    QTest::newRow("sew") << sewFile({1}, pairs(design));
    QTest::newRow("jef") << jefFile({1}, pairs(design));
    QTest::newRow("hus") << husFileOf(design);
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
          bytes.size(), megabytes / reading, points * 1e-6 / reading, megabytes / summing,
          reading / summing);
}

QTEST_APPLESS_MAIN(BenchReaders)
#include "bench_readers.moc"
