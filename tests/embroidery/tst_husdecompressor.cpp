#include "embroidery/HusDecompressor.h"
#include "embroidery/IOException.h"
#include "embroidery/support/HusCompressor.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace TestSupport;

Q_DECLARE_METATYPE(HusToken)

namespace {

constexpr int End = 510;

QByteArray decompress(QByteArray stream)
{
    QByteArray output;
    HusDecompressor(&stream, &output, stream.size(), 10).decompress();
    return output;
}

QString errorOf(const QByteArray &stream)
{
    try {
        decompress(stream);
    } catch (const Embroidery::IOException &e) {
        return e.message;
    }
    return QString();
}

const QString corrupt = QStringLiteral("Error decompressing file");
const QString overfull = QStringLiteral("Failed to decompress file.");

QByteArray noise(int size, int alphabet)
{
    QRandomGenerator random(42);
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes.append(static_cast<char>(random.bounded(alphabet)));
    return bytes;
}

/** Literals whose frequencies are Fibonacci numbers, which make the deepest Huffman tree. */
QVector<HusToken> skewedLiterals(int symbols)
{
    QVector<HusToken> tokens;
    for (int symbol = 0, a = 1, b = 1; symbol < symbols; ++symbol) {
        for (int i = 0; i < a; ++i)
            tokens.append(HusToken{symbol});
        b += a;
        a = b - a;
    }
    return tokens;
}

/** What the tokens stand for. */
QByteArray expand(const QVector<HusToken> &tokens)
{
    QByteArray bytes;
    for (const HusToken &token : tokens) {
        if (token.code < 256) {
            bytes.append(static_cast<char>(token.code));
            continue;
        }
        for (int i = 0; token.code != End && i < token.code - 253; ++i) {
            const int from = bytes.size() - token.reach;
            bytes.append(from < 0 ? '\0' : bytes.at(from));
        }
    }
    return bytes;
}

} // namespace

class TestHusDecompressor : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data();
    void bytes();
    void tokens_data();
    void tokens();
    void handMadeStream();
    void corruptStreams_data();
    void corruptStreams();
    void cutAtEveryByte();
    void boundOnOutput();
};

void TestHusDecompressor::bytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("codesPerBlock");

    QTest::newRow("nothing") << QByteArray() << 65536;
    QTest::newRow("one byte") << QByteArray("x") << 65536;
    QTest::newRow("text") << QByteArray("a rose is a rose is a rose") << 65536;
    QTest::newRow("several blocks") << noise(5000, 7) << 100;
    QTest::newRow("blocks of one code") << QByteArray("abcabcabcabc") << 1;
    QTest::newRow("all bytes") << noise(6000, 256) << 1000;
    QTest::newRow("one byte, far past the window") << QByteArray(5000, 'z') << 65536;
    QTest::newRow("exactly the window") << noise(1024, 256) << 65536;
    QTest::newRow("stitch-like") << noise(6000, 3) << 65536;
}

void TestHusDecompressor::bytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, codesPerBlock);
    for (const CodeShape shape : {CodeShape::Huffman, CodeShape::Comb}) {
        const HusOptions options{codesPerBlock, CodeShape::Huffman, shape};
        QCOMPARE(decompress(husCompress(bytes, options)), bytes);
    }
}

void TestHusDecompressor::tokens_data()
{
    QTest::addColumn<QVector<HusToken>>("tokens");
    QTest::addColumn<int>("codesPerBlock");

    const QVector<HusToken> end{{End}};
    const QVector<HusToken> thousand(1000, HusToken{'a'});
    QTest::newRow("match across the window's end")
        << thousand + QVector<HusToken>{{'b'}, {253 + 256, 100}, {'c'}} + end << 65536;
    QTest::newRow("distance of 0 repeats") << QVector<HusToken>{{'q'}, {253 + 9, 1}} + end << 65536;
    QTest::newRow("whole window back")
        << thousand + QVector<HusToken>{{'b'}, {253 + 100, 1001}, {253 + 200, 1024}} + end << 65536;
    QTest::newRow("before the beginning is zero")
        << QVector<HusToken>{{'q'}, {253 + 4, 3}} + end << 65536;
    QTest::newRow("codes of 16 bits") << skewedLiterals(17) + end << 65536;
    QTest::newRow("single-code trees") << QVector<HusToken>(300, HusToken{253 + 5, 2}) + end << 300;
    QTest::newRow("a full block of 65536 codes")
        << QVector<HusToken>(65536, HusToken{'a'}) + end << 65536;

    QVector<HusToken> distances = thousand;
    for (int symbol = 0, count = 1; symbol < 11; ++symbol, count *= 2) {
        for (int i = 0; i < count; ++i)
            distances += {{i & 255}, {253 + 3 + i % 5, symbol == 0 ? 1 : (1 << (symbol - 1)) + 1}};
    }
    QTest::newRow("long distance codes") << distances + end << 65536;
}

void TestHusDecompressor::tokens()
{
    QFETCH(QVector<HusToken>, tokens);
    QFETCH(int, codesPerBlock);
    for (const CodeShape shape : {CodeShape::Huffman, CodeShape::Comb}) {
        const HusOptions options{codesPerBlock, shape, shape};
        QCOMPARE(decompress(husEncode(tokens, options)), expand(tokens));
    }
}

void TestHusDecompressor::handMadeStream()
{
    BitWriter out;
    out.put(3, 16);                 // three codes
    out.put(0, 5), out.put(0, 5);   // no length code
    out.put(0, 9), out.put('A', 9); // every code is 'A'
    out.put(0, 5), out.put(0, 5);   // no distance code
    out.put(1, 16);                 // one code
    out.put(0, 5), out.put(0, 5);
    out.put(0, 9), out.put(End, 9); // it is the end
    out.put(0, 5), out.put(0, 5);
    QCOMPARE(decompress(out.bytes()), QByteArray("AAA"));
}

void TestHusDecompressor::corruptStreams_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QString>("message");

    const auto row = [](const char *name, const QString &message,
                        const QVector<QPair<int, int>> &fields) {
        BitWriter out;
        out.put(9, 16);
        for (const auto &field : fields)
            out.put(field.first, field.second);
        QTest::newRow(name) << out.bytes() + QByteArray(8, '\0') << message;
    };
    QTest::newRow("empty") << QByteArray() << corrupt;
    row("too many lengths", corrupt, {{20, 5}});
    row("length above 16", corrupt, {{19, 5}, {0x1FFF, 13}});
    row("incomplete code", corrupt, {{1, 5}, {1, 3}});
    row("over-full code that does not wrap", corrupt,
        {{3, 5}, {1, 3}, {1, 3}, {1, 3}, {0, 2}, {0, 5}});
    row("over-full code that wraps", overfull,
        {{5, 5}, {1, 3}, {1, 3}, {1, 3}, {0, 2}, {1, 3}, {0, 3}});
    row("run past the last code", corrupt, {{0, 5}, {2, 5}, {511, 9}, {511, 9}});
    row("too many distances", corrupt, {{0, 5}, {0, 5}, {0, 9}, {65, 9}, {16, 5}});
}

void TestHusDecompressor::corruptStreams()
{
    QFETCH(QByteArray, stream);
    QFETCH(QString, message);
    QCOMPARE(errorOf(stream), message);
}

void TestHusDecompressor::cutAtEveryByte()
{
    const QByteArray bytes = noise(40, 5) + QByteArray(50, 'x');
    const QByteArray stream = husCompress(bytes, {25});
    for (int size = 0; size < stream.size(); ++size) {
        const QString error = errorOf(stream.left(size));
        QVERIFY2(error.isEmpty() || error == corrupt || error == overfull, qPrintable(error));
    }
}

void TestHusDecompressor::boundOnOutput()
{
    const QByteArray sound(3000000, 'x');
    QCOMPARE(decompress(husCompress(sound)), sound);

    const int matches = HusDecompressor::MaximumOutputSize / 256;
    QVector<HusToken> tokens(matches, HusToken{253 + 256, 1});
    tokens.append(HusToken{End});
    QCOMPARE(decompress(husEncode(tokens, {65536})).size(), matches * 256);
    tokens.prepend(HusToken{'x'});
    QCOMPARE(errorOf(husEncode(tokens, {65536})), corrupt);
}

QTEST_APPLESS_MAIN(TestHusDecompressor)
#include "tst_husdecompressor.moc"
