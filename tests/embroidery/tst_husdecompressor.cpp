#include "embroidery/HusDecompressor.h"
#include "embroidery/IOException.h"
#include "support/Rows.h"
#include "writers/BitSink.h"
#include "writers/HusCompressor.h"

#include <QtTest>

using DesignWriters::BitSink;
using DesignWriters::CodeShape;
using HusCompressor::EndSymbol;
using HusCompressor::Token;
using Tokens = QVector<Token>;

Q_DECLARE_METATYPE(Token)

static QByteArray decompress(QByteArray stream)
{
    QByteArray output;
    HusDecompressor(&stream, &output, stream.size(), 10).decompress();
    return output;
}

static QString errorOf(const QByteArray &stream)
{
    try {
        decompress(stream);
    } catch (const Embroidery::IOException &e) {
        return e.message;
    }
    return QString();
}

const QString corrupt = "Error decompressing file";
const QString overfull = "Failed to decompress file.";

static QByteArray noise(int size, int alphabet)
{
    QRandomGenerator random(42);
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes.append(static_cast<char>(random.bounded(alphabet)));
    return bytes;
}

/** What the tokens stand for. */
static QByteArray expand(const Tokens &tokens)
{
    QByteArray bytes;
    for (const Token &token : tokens) {
        if (token.symbol < 256) {
            bytes.append(static_cast<char>(token.symbol));
            continue;
        }
        for (int i = 0; token.symbol != EndSymbol && i < token.symbol - 253; ++i) {
            const int from = bytes.size() - token.distance;
            bytes.append(from < 0 ? '\0' : bytes.at(from));
        }
    }
    return bytes;
}

class TestHusDecompressor : public QObject
{
    Q_OBJECT

private slots:
    void bytes_data()
    {
        const Rows<QByteArray, int> row("bytes", "tokensPerBlock");

        row("nothing", {}, 65536);
        row("one byte", "x", 65536);
        row("several blocks", noise(5000, 7), 100);
        row("blocks of one code", "abcabcabcabc", 1);
        row("all bytes", noise(6000, 256), 1000);
        row("exactly the window", noise(1024, 256), 65536);
        row("far past the window", noise(6000, 3), 65536);
    }

    void bytes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, tokensPerBlock);
        for (const CodeShape shape : {CodeShape::Huffman, CodeShape::Comb}) {
            const HusCompressor::Options options{tokensPerBlock, CodeShape::Huffman, shape};
            QCOMPARE(decompress(HusCompressor::compress(bytes, options)), bytes);
        }
    }

    void tokens_data()
    {
        const Rows<Tokens, int> row("tokens", "tokensPerBlock");

        const Tokens end{{EndSymbol}};
        const Tokens thousand(1000, Token{'a'});
        row("match across the window's end",
            thousand + Tokens{{'b'}, {253 + 256, 100}, {'c'}} + end, 65536);
        row("distance of 0 repeats", Tokens{{'q'}, {253 + 9, 1}} + end, 65536);
        row("whole window back",
            thousand + Tokens{{'b'}, {253 + 100, 1001}, {253 + 200, 1024}} + end, 65536);
        row("before the beginning is zero", Tokens{{'q'}, {253 + 4, 3}} + end, 65536);
        row("single-code trees", Tokens(300, Token{253 + 5, 2}) + end, 300);
        row("a full block of 65536 codes", Tokens(65536, Token{'a'}) + end, 65536);

        Tokens literals;
        for (int symbol = 0; symbol < 16; ++symbol)
            literals += Tokens(symbol + 1, Token{symbol});
        row("codes of 16 bits", literals + end, 65536);

        Tokens distances = thousand;
        for (int symbol = 0, count = 1; symbol < 11; ++symbol, count *= 2) {
            for (int i = 0; i < count; ++i)
                distances +=
                    {{i & 255}, {253 + 3 + i % 5, symbol == 0 ? 1 : (1 << (symbol - 1)) + 1}};
        }
        row("long distance codes", distances + end, 65536);
    }

    void tokens()
    {
        QFETCH(Tokens, tokens);
        QFETCH(int, tokensPerBlock);
        for (const CodeShape shape : {CodeShape::Huffman, CodeShape::Comb}) {
            const HusCompressor::Options options{tokensPerBlock, shape, shape};
            QCOMPARE(decompress(HusCompressor::encode(tokens, options)), expand(tokens));
        }
    }

    void corruptStreams_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QString>("message");

        const auto row = [](const char *name, const QString &message,
                            const QVector<QPair<unsigned int, int>> &fields) {
            BitSink out;
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

    void corruptStreams()
    {
        QFETCH(QByteArray, stream);
        QTEST(errorOf(stream), "message");
    }

    void cutAtEveryByte()
    {
        const QByteArray bytes = noise(40, 5) + QByteArray(50, 'x');
        const QByteArray stream = HusCompressor::compress(bytes, {25});
        for (int size = 0; size < stream.size(); ++size) {
            const QString error = errorOf(stream.left(size));
            QVERIFY2(error.isEmpty() || error == corrupt || error == overfull, qPrintable(error));
        }
    }

    void boundOnOutput()
    {
        const int matches = HusDecompressor::MaximumOutputSize / 256;
        const Tokens most = Tokens(matches, Token{253 + 256, 1}) + Tokens{{EndSymbol}};
        QCOMPARE(decompress(HusCompressor::encode(most)).size(), matches * 256);
        QCOMPARE(errorOf(HusCompressor::encode(Tokens{{'x'}} + most)), corrupt);
    }
};

QTEST_APPLESS_MAIN(TestHusDecompressor)
#include "tst_husdecompressor.moc"
